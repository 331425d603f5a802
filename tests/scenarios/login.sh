# A rights database with two users, the first exempt from the gates.
mkdir rights
printf 'right\nright\n' | "$QVDB" user add rights 李经理 11111111111111111111111111111111111111111111111111
printf 'other\nother\n' | "$QVDB" user add rights 小王 0
"$QVDB" user unit rights 总公司
"$QVDB" user exempt rights 李经理
