# A second place whose only customer the scenario adds.
"$QVDB" init $QVDB_SECOND --currency RMB
