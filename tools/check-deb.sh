#!/bin/sh
# Builds the Debian package from a build folder, unpacks it into a scratch
# root and runs the installed app's self-test there, with nothing pointing
# it at the build's data pack.
#   tools/check-deb.sh BUILD_DIR
set -eu
build=$(cd "$1" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

if ! (cd "$build" && cpack -G DEB -B "$scratch/out" >"$scratch/cpack.log" 2>&1); then
    cat "$scratch/cpack.log"
    exit 1
fi
deb=$(ls "$scratch"/out/*.deb)
echo "package: $(basename "$deb")"
dpkg-deb --field "$deb" Depends
dpkg -x "$deb" "$scratch/root"
root="$scratch/root/usr"
for f in bin/qor bin/qor-cli share/qor/pack/pack.json share/applications/qor.desktop \
         share/metainfo/org.qor.QOR.metainfo.xml share/icons/hicolor/scalable/apps/qor.svg; do
    [ -e "$root/$f" ] || { echo "missing from the package: /usr/$f"; exit 1; }
done
grep -q "x-scheme-handler/qor" "$root/share/applications/qor.desktop"

unset QOR_RESOURCES QOR_PACK
export HOME="$scratch/home" XDG_CONFIG_HOME="$scratch/home/.config" XDG_DATA_HOME="$scratch/home/.local/share" \
       XDG_CACHE_HOME="$scratch/home/.cache"
mkdir -p "$HOME"
version=$("$root/bin/qor" --version)
echo "$version"
echo "$version" | grep -q "($root/share/qor/pack)" || { echo "the installed app does not read its own data pack"; exit 1; }
QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software QTWEBENGINE_DISABLE_SANDBOX=1 "$root/bin/qor" --self-test
"$root/bin/qor-cli" material 1005 >/dev/null
echo "the installed package runs"
