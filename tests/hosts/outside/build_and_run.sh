#!/bin/sh
# build_and_run.sh CMAKE BUILD SOURCE COMPILER: installs what BUILD made into a temporary folder,
# configures and builds the hosts of ./host there, and runs them.
set -eu
cmake=$1 build=$2 source=$3 compiler=$4
here=$(dirname "$(realpath "$0")")
folder=$(mktemp -d "${TMPDIR:-/tmp}/qvzj-outside-XXXXXX")
trap 'rm -rf "$folder"' EXIT

"$cmake" --install "$build" --prefix "$folder/installed" > "$folder/log" || {
  cat "$folder/log"
  exit 1
}
cp -r "$here/host" "$folder/host"
"$cmake" -S "$folder/host" -B "$folder/build" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
  -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_PREFIX_PATH="$folder/installed" --log-level=WARNING
if grep -rIlF "$source/" "$folder/build/build.ninja" "$folder/installed"; then
  echo "the files above lead back into the source tree"
  exit 1
fi
"$cmake" --build "$folder/build" > "$folder/log" || {
  cat "$folder/log"
  exit 1
}
mkdir "$folder/data"
timeout 60 "$folder/build/linked" "$folder/data" "$folder/settings.ini"
timeout 60 "$folder/build/loading" "$folder/data"
