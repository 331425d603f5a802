# A second data folder whose first customer has another name.
cp -r data second
