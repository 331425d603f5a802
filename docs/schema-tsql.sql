-- The tables of the ledger for T-SQL servers (SQL Server and its relatives), for those who set
-- them up by hand. Parsed, but never yet run on a server. Where the suite has its tables there
-- already, only the indexes are of interest.
--
-- The database needs a collation of the code page 936 that ignores case, such as
-- Chinese_PRC_CI_AS: the programs write texts without N before them.

if object_id('cards') is null
create table cards (
  fID integer primary key,
  CompCode nvarchar(255), compname nvarchar(255), name nvarchar(255), fBank nvarchar(255), fAcntID nvarchar(255), others nvarchar(255),
  province nvarchar(255), cityname nvarchar(255), postcode nvarchar(255), telphone nvarchar(255), fax nvarchar(255),
  fType0 integer default 0,
  detail nvarchar(max));

if not exists (select 1 from sys.indexes where name='icardsCode')
create index icardsCode on cards (CompCode);

if not exists (select 1 from sys.indexes where name='icardsName')
create index icardsName on cards (compname);

if object_id('tAccounts') is null
create table tAccounts (
  fID integer primary key,
  CompCode nvarchar(255), compname nvarchar(255), name nvarchar(255), fBank nvarchar(255), fAcntID nvarchar(255), others nvarchar(255),
  province nvarchar(255), cityname nvarchar(255), postcode nvarchar(255), telphone nvarchar(255), fax nvarchar(255),
  fType0 integer default 0,
  detail nvarchar(max));

if not exists (select 1 from sys.indexes where name='itAccountsCode')
create index itAccountsCode on tAccounts (CompCode);

if not exists (select 1 from sys.indexes where name='itAccountsName')
create index itAccountsName on tAccounts (compname);

if object_id('tAccountDetail') is null
create table tAccountDetail (
  fID integer identity(1,1) primary key,
  fDate date, fCompID integer, fType1 integer, fType2 integer, fAcntNo nvarchar(255), fInit integer,
  fMoneyA float default 0, fMoneyB float default 0,
  fBrief nvarchar(255), fInvID nvarchar(255), fOrderID nvarchar(255), fUser nvarchar(255), fDoneman nvarchar(255), fChecker nvarchar(255),
  fID2 integer, fMoneyCode nvarchar(255), fMoneyRate float);

-- the ledger of one customer or account, in the order in which it is shown
if not exists (select 1 from sys.indexes where name='iLedgerRecord')
create index iLedgerRecord on tAccountDetail (fCompID, fType1, fDate, fAcntNo);

-- the ledger of everyone between two dates
if not exists (select 1 from sys.indexes where name='iLedgerDate')
create index iLedgerDate on tAccountDetail (fDate);

-- the next voucher number under a stem
if not exists (select 1 from sys.indexes where name='iLedgerNumber')
create index iLedgerNumber on tAccountDetail (fAcntNo);

-- the counter-entries of a customer entry
if not exists (select 1 from sys.indexes where name='iLedgerLink')
create index iLedgerLink on tAccountDetail (fID2, fType1);

if object_id('Moneys') is null
create table Moneys (
  MoneyCode nvarchar(255) primary key, MoneyRate float, MoneyType integer);

if object_id('Employees') is null
create table Employees (employCode nvarchar(255) primary key, employee nvarchar(255));

if object_id('tRsBasic') is null
create table tRsBasic (fID integer identity(1,1) primary key, fName nvarchar(255));

if object_id('tJXC_InvSet') is null
create table tJXC_InvSet (
  fRowID integer primary key, fSetNo integer, fSetNoUse_ integer default 0, fSetAutoNo nvarchar(255));

if object_id('tSysFunc') is null
create table tSysFunc (
  SerialNo integer primary key, model_Name nvarchar(255), Model_Name_0 nvarchar(255), Model_Name_1 nvarchar(255),
  SecondPass integer default 0, password nvarchar(255), NoUse_ integer default 0);

if object_id('tTaskList') is null
create table tTaskList (
  fID integer identity(1,1) primary key, taskID integer, fType integer, fDate date,
  fUser nvarchar(255), fBrief nvarchar(255));

if not exists (select 1 from sys.indexes where name='iTaskRecord')
create index iTaskRecord on tTaskList (taskID, fType);

if object_id('tJXC_CkDj01') is null
create table tJXC_CkDj01 (
  fID integer identity(1,1) primary key, fInvNo nvarchar(255), fKhID integer, fInvSHR nvarchar(255));

if not exists (select 1 from sys.indexes where name='iCkDjNumber')
create index iCkDjNumber on tJXC_CkDj01 (fInvNo);

if not exists (select 1 from sys.indexes where name='iCkDjCustomer')
create index iCkDjCustomer on tJXC_CkDj01 (fKhID);

if object_id('tJXC_CkDj_Bak01') is null
create table tJXC_CkDj_Bak01 (
  fID integer identity(1,1) primary key, fInvNo nvarchar(255), fKhID integer, fInvSHR nvarchar(255));

if not exists (select 1 from sys.indexes where name='iCkDjBakNumber')
create index iCkDjBakNumber on tJXC_CkDj_Bak01 (fInvNo);

if object_id('tJXC_CkHt01') is null
create table tJXC_CkHt01 (fID integer identity(1,1) primary key, fKhID integer);

if not exists (select 1 from sys.indexes where name='iCkHtCustomer')
create index iCkHtCustomer on tJXC_CkHt01 (fKhID);

if not exists (select 1 from sys.indexes where name='iLedgerCounter')
create unique index iLedgerCounter on tAccountDetail (fID2) where fType1=1 and fID2>0;
