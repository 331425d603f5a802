DELETE FROM cards;
DELETE FROM tAccounts;
DELETE FROM tAccountDetail;
