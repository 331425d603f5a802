# A folder without a data file, a file that is no database, an empty one, one that may not be
# written, and two to be damaged by the script.
mkdir no-file not-a-database empty read-only no-ledger no-moneys
echo "This is not a database, it is a letter to the accountant." > not-a-database/qvjxc.db
: > empty/qvjxc.db
for folder in read-only no-ledger no-moneys; do cp data/qvjxc.db* $folder; done
chmod a-w read-only/* read-only
