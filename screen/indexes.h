#pragma once

/// Indexes of the form's control arrays and pages, named by what they show.
namespace qvzj {

/// Boxes of the entry editor (`txtAcnt2`, 1 to 9) and their labels (`lblAcnt2`, 0 to 11). The date,
/// the handler and the checker have controls of other kinds under their labels.
struct EntryBox {
  enum Index : int {
    Date = 0,
    Number = 1,  ///< voucher number
    Record = 2,  ///< customer or account: its name; its id in the tag
    MoneyA = 3,  ///< amount due, or the opening amount of a money account
    MoneyB = 4,  ///< amount received, paid, in or out
    Balance = 5,
    Brief = 6,
    InvID = 7,  ///< warehouse document
    OrderID = 8,
    User = 9,
    Doneman = 10,
    Checker = 11
  };
};

/// Boxes of the record page (`txtAcnt`, `lblAcnt`).
struct RecordBox {
  enum Index : int {
    Code = 0,
    Name = 1,
    Contact = 2,
    Bank = 3,
    BankAccount = 4,
    Summary = 5,
    Region = 6,
    City = 7,
    Postcode = 8,
    Telephone = 9,
    Fax = 10
  };
};

/// Direction of an entry (`optType2`), the value of its `fType2`.
struct Direction {
  enum Index : int { In = 1, Out = 2 };
};

/// What a customer is for (`optKhType`), the value of its `fType0`; in the search (`optSeek`) the
/// first one asks for all.
struct CustomerType {
  enum Index : int { Both = 0, All = 0, Supplier = 1, Dealer = 2, Consignee = 3 };
};

/// Entries of the register menu (`mnuKhManage`), and the armed action of the record page.
struct RecordAction {
  enum Index : int { None = 0, Add = 1, Change = 2, Delete = 3 };
};

/// Pages of the register (`SSTab1`).
struct RegisterTab {
  enum Index : int { List = 0, Record = 1, Search = 2 };
};

/// Tabs of the ledger (`SSTab2`): both sides, or one side shown positive.
struct LedgerTab {
  enum Index : int { Both = 0, In = 1, Out = 2 };
};

/// Whose entries the ledger lists (`OptSelect`).
struct Selection {
  enum Index : int { All = 0, Searched = 1, Single = 2 };
};

/// Boxes of the totals panel (`txtTotal`, `lblTotal`). Money accounts have no BalanceIn and no
/// MoneyAOut; their MoneyAIn is the opening amount of both directions.
struct TotalBox {
  enum Index : int {
    MoneyAIn = 0,
    MoneyBIn = 1,
    BalanceIn = 2,
    MoneyAOut = 3,
    MoneyBOut = 4,
    Balance = 5
  };
};

/// Rows of the ledger filter: days (`chkDate`), numbers (`chkID`), people (`chkUser`), checked or
/// not (`chkVerify`).
struct FilterBox {
  enum Day : int { From = 0, To = 1 };
  enum Number : int { AcntNo = 0, InvID = 1, OrderID = 2 };
  enum Person : int { User = 0, Doneman = 1, Checker = 2 };
  enum State : int { Checked = 0, Unchecked = 1 };
};

}  // namespace qvzj
