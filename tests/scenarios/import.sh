# Suppliers and payments of a city council into a data folder of their own.
payments=$(dirname "$0")/payments-excerpt.csv
"$QVDB" init --data payments --currency GBP
"$QVDB" import customers "$payments" --data payments --once \
  --map CompCode=supplier_id --map compname=supplier_name --set fType0=1
"$QVDB" import entries "$payments" --data payments --map CompCode=supplier_id \
  --map fDate=paid_date --map fAcntNo=trans_no --map fMoneyA=amount --map fMoneyB=amount \
  --map fBrief=category --set fType2=2 --set fMoneyCode=GBP
