-- The rows every scenario begins with, in SQL that any engine takes. The ids of the ledger entries
-- come from the database, in this order: 1 to 13.
INSERT INTO Moneys (MoneyCode, MoneyRate, MoneyType) VALUES ('RMB', 1, 9);
INSERT INTO Moneys (MoneyCode, MoneyRate, MoneyType) VALUES ('USD', 7.2, 5);
INSERT INTO Moneys (MoneyCode, MoneyRate, MoneyType) VALUES ('HKD', 0.92, 3);

INSERT INTO Employees (employCode, employee) VALUES ('0002', '李四');
INSERT INTO Employees (employCode, employee) VALUES ('0001', '张三');
INSERT INTO Employees (employCode, employee) VALUES ('0003', '王五');
INSERT INTO tRsBasic (fName) VALUES ('赵六');
INSERT INTO tRsBasic (fName) VALUES ('孙七');

INSERT INTO tAccounts (fID, CompCode, compname, name, fBank, fAcntID, others, province, cityname, postcode, telphone, fax, fType0, detail) VALUES (1, '0001', '现金', '总经理', '现金', '000001', NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL);
INSERT INTO tAccounts (fID, CompCode, compname, name, fBank, fAcntID, others, province, cityname, postcode, telphone, fax, fType0, detail) VALUES (2, '0002', '招商银行', '总经理', '招商银行深圳分行', '075500000001', '基本户', '广东', '深圳', '518000', '0755-95555', '', 0, '开户许可证在财务室');
INSERT INTO tAccounts (fID, CompCode, compname, name, fBank, fAcntID, others, province, cityname, postcode, telphone, fax, fType0, detail) VALUES (3, '0003', '外币户', '李四', '中国银行', '800100', '', '', '', '', '', '', 0, '');

INSERT INTO cards (fID, CompCode, compname, name, fBank, fAcntID, others, province, cityname, postcode, telphone, fax, fType0, detail) VALUES (1, 'C001', '北京宏远贸易有限公司', '王强', '工商银行北京分行', '0200001', '老客户', '北京', '北京', '100020', '010-65001234', '010-65001235', 0, '月结30天');
INSERT INTO cards (fID, CompCode, compname, name, fBank, fAcntID, others, province, cityname, postcode, telphone, fax, fType0, detail) VALUES (2, 'C002', '上海明珠电子厂', '李丽', '建设银行上海分行', '3100002', '', '上海', '上海', '200030', '021-54321000', '', 1, '');
INSERT INTO cards (fID, CompCode, compname, name, fBank, fAcntID, others, province, cityname, postcode, telphone, fax, fType0, detail) VALUES (3, 'C003', '广州南方商行', '陈伟', '', '', '', '广东', '广州', '510000', '', '', 2, '');
INSERT INTO cards (fID, CompCode, compname, name, fBank, fAcntID, others, province, cityname, postcode, telphone, fax, fType0, detail) VALUES (4, 'C004', '深圳创新代销部', '周敏', '', '', '', '广东', '深圳', '518000', '', '', 3, '');
INSERT INTO cards (fID, CompCode, compname, name, fBank, fAcntID, others, province, cityname, postcode, telphone, fax, fType0, detail) VALUES (5, 'C005', '安徽茶叶公司', NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL);
INSERT INTO cards (fID, CompCode, compname, name, fBank, fAcntID, others, province, cityname, postcode, telphone, fax, fType0, detail) VALUES (6, 'C006', '成都锦江商贸', '刘洋', '', '', '', '四川', '成都', '610000', '', '', 9, '');

-- 1 to 3: customer 1, all receivable but the second; 3 is linked to the bank account.
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-01-05', 1, 0, 1, '202401PZ00001', 0, 1000, 300, '销售货款', 'CK0001', 'DD001', 'admin', '张三', '', 0, 'RMB', 1);
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-01-10', 1, 0, 2, '202401PZ00002', 0, 200, 0, '退货', '', '', 'admin', '李四', '', 0, 'RMB', 1);
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-02-03', 1, 0, 1, '202402PZ00001', 0, 0, 500.5, '收款', '', '', 'keyer', '', '', 2, 'RMB', 1);
-- 4 is checked and has its counter-entry 5 in the cash account.
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-02-20', 2, 0, 2, '202402PZ00002', 0, 3000.5, 1000, '采购付款', 'CK0003', 'DD007', 'admin', '张三', '李四', 1, 'RMB', 1);
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-02-20', 1, 1, 2, '202402PZ00002', 0, 0, 1000, '挂入-上海明珠电子厂', 'CK0003', 'DD007', 'admin', '张三', '', 4, 'RMB', 1);
-- 6: a foreign currency at a rate of its own; 7: an opening balance; 8: a register record that is gone.
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-03-01', 3, 0, 1, '202403PZ00001', 0, 200, 0, '样品', 'CK0002', '', 'admin', '王五', '', 0, 'USD', 7.1);
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-01-01', 3, 0, 1, '202401PZ00003', 1, 88.88, 0, '期初', '', '', 'admin', '', '', 0, 'RMB', 1);
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-03-02', 99, 0, 1, '202403PZ00002', 0, 50, 0, '客户已删', '', '', 'admin', '', '', 0, 'RMB', 1);
-- 9 to 11: the cash account, with a direction that is neither 1 nor 2; 12 and 13: the bank account.
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-01-01', 1, 1, 1, '202401PZ90001', 1, 10000, 0, '期初', '', '', 'admin', '', '李四', 0, 'RMB', 1);
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-01-15', 1, 1, 2, '202401PZ90002', 0, 0, 120.5, '办公用品', '', '', 'admin', '王五', '', 0, 'RMB', 1);
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-01-31', 1, 1, 0, '202401PZ90003', 0, 0, 79.5, '差旅', 'CK0003', '', 'admin', '王五', '', 0, 'RMB', 1);
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-02-01', 2, 1, 1, '202402PZ90001', 0, 0, 5000, '存入', '', '', 'admin', '', '', 0, 'RMB', 1);
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-02-01', 2, 1, 2, '202402PZ90002', 0, 0, 5, '手续费', '', '', 'admin', '', '', 0, 'RMB', 1);

INSERT INTO tSysFunc (SerialNo, model_Name, Model_Name_0, Model_Name_1, SecondPass, password, NoUse_) VALUES (31, 'mnuZjComp', '客户往来', '客戶往來', 0, '', 0);
INSERT INTO tSysFunc (SerialNo, model_Name, Model_Name_0, Model_Name_1, SecondPass, password, NoUse_) VALUES (32, 'mnuZjAcnt', '资金帐户', '資金帳戶', 0, '', 0);
INSERT INTO tSysFunc (SerialNo, model_Name, Model_Name_0, Model_Name_1, SecondPass, password, NoUse_) VALUES (41, 'mnuCardPlan', '客户联系', '客戶聯系', 1, 'secret', 0);

INSERT INTO tTaskList (taskID, fType) VALUES (4, 1);
INSERT INTO tJXC_CkDj01 (fKhID, fInvNo, fInvSHR) VALUES (3, 'CK0001', '李四');
INSERT INTO tJXC_CkDj01 (fKhID, fInvNo, fInvSHR) VALUES (3, 'CK0002', NULL);
INSERT INTO tJXC_CkDj_Bak01 (fInvNo, fInvSHR) VALUES ('CK0003', '李四');
INSERT INTO tJXC_CkHt01 (fKhID) VALUES (6);
