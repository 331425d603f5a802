INSERT INTO tJXC_InvSet (fRowID, fSetNo, fSetNoUse_, fSetAutoNo) VALUES (1, 51, 1, 'OFF-XXX');
INSERT INTO tJXC_InvSet (fRowID, fSetNo, fSetNoUse_, fSetAutoNo) VALUES (2, 51, 0, 'yymmdd-kxxx');
INSERT INTO tJXC_InvSet (fRowID, fSetNo, fSetNoUse_, fSetAutoNo) VALUES (3, 52, 0, 'ZJXX');
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-07-05', 1, 0, 1, '240705-K041', 0, 1, 0, '', '', '', '', '', '', 0, 'RMB', 1);
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-07-05', 1, 0, 1, '240705-KABC', 0, 1, 0, '', '', '', '', '', '', 0, 'RMB', 1);
INSERT INTO tAccountDetail (fDate, fCompID, fType1, fType2, fAcntNo, fInit, fMoneyA, fMoneyB, fBrief, fInvID, fOrderID, fUser, fDoneman, fChecker, fID2, fMoneyCode, fMoneyRate) VALUES ('2024-07-05', 1, 1, 1, 'ZJ99', 0, 0, 1, '', '', '', '', '', '', 0, 'RMB', 1);
