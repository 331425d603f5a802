# A folder without a data file, a file that is no database, and one that may not be written.
mkdir no-file not-a-database read-only
echo "This is not a database, it is a letter to the accountant." > not-a-database/qvjxc.db
cp data/qvjxc.db* read-only
chmod a-w read-only/* read-only
