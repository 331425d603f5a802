# Suppliers and payments of a city council into the second place.
payments=$(dirname "$0")/payments-excerpt.csv
"$QVDB" init $QVDB_SECOND --currency GBP
"$QVDB" import customers "$payments" $QVDB_SECOND --once \
  --map CompCode=supplier_id --map compname=supplier_name --set fType0=1
"$QVDB" import entries "$payments" $QVDB_SECOND --map CompCode=supplier_id \
  --map fDate=paid_date --map fAcntNo=trans_no --map fMoneyA=amount --map fMoneyB=amount \
  --map fBrief=category --set fType2=2 --set fMoneyCode=GBP
