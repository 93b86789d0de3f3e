#!/usr/bin/env bash
# Makes build/appimage/Tessarolyne.AppDir, which runs by its AppRun on any Linux as new as this one, and packs it as an
# AppImage where appimagetool is found. Options that begin with -D go to CMake.
set -euo pipefail
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.."
# shellcheck source=tools/packages.sh
source tools/packages.sh

identifier=org.tessarolyne.Tessarolyne
build=build/appimage
app=$PWD/$build/Tessarolyne.AppDir

# What every desktop has and must be its own: the C library and the compiler's, drivers, X, fonts.
fromHost='^(ld-linux.*|lib(c|m|dl|rt|pthread|resolv|gcc_s|stdc\+\+|GL|EGL|GLX|GLdispatch|OpenGL|GLESv2|drm|gbm|glapi'
fromHost+='|X11|X11-xcb|xcb|xcb-dri2|xcb-dri3|fontconfig|freetype|z|expat|uuid|com_err|gpg-error|ICE|SM|p11-kit))\.so'

# Copies the libraries that the files in the folder $1 need, and that they in turn need.
CopyLibraries() {
    find "$1" -type f \( -name '*.so*' -o -perm -u+x \) -exec ldd {} + 2>/dev/null |
        awk '$2 == "=>" && $3 ~ /^\// { print $3 }' | sort -u |
        while read -r library; do
            [[ ${library##*/} =~ $fromHost ]] || cp -n "$library" "$app/usr/lib/"
        done
}

EnsurePackages "${packagesToRun[@]}" "${packagesForWayland[@]}" qt6-xdgdesktopportal-platformtheme
cmake -G Ninja -B "$build/cmake" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr -DTESSAROLYNE_BUILD_TESTS=OFF "$@"
cmake --build "$build/cmake"
rm -rf "$app"
DESTDIR=$app cmake --install "$build/cmake" --strip
plugins=$(qtpaths6 --query QT_INSTALL_PLUGINS)
mkdir -p "$app/usr/"{lib,bin,plugins,translations,share/fonts}
for folder in platforms platformthemes platforminputcontexts imageformats tls xcbglintegrations \
    wayland-decoration-client wayland-graphics-integration-client wayland-shell-integration; do
    if [[ -d $plugins/$folder ]]; then cp -r "$plugins/$folder" "$app/usr/plugins/"; fi
done
# Another desktop's themes bring its libraries; the portal's works on each.
find "$app/usr/plugins/platformthemes" -type f ! -name '*portal*' -delete
find "$app/usr/plugins/platforms" -type f ! -name 'libqxcb*' ! -name 'libqwayland*' -delete
CopyLibraries "$app/usr"
cp "$(qtpaths6 --query QT_INSTALL_TRANSLATIONS)"/qtbase_*.qm "$app/usr/translations/"
# It has the ✎ of four buttons, which many fonts have not.
cp /usr/share/fonts/truetype/dejavu/DejaVuSans.ttf "$app/usr/share/fonts/"
cat >"$app/usr/share/fonts.conf" <<'END'
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig>
  <include ignore_missing="yes">/etc/fonts/fonts.conf</include>
  <dir prefix="relative">fonts</dir>
</fontconfig>
END
printf '[Paths]\nPrefix = ..\nPlugins = plugins\nTranslations = translations\n' >"$app/usr/bin/qt.conf"
cat >"$app/AppRun" <<'END'
#!/bin/sh
here=$(dirname -- "$(readlink -f -- "$0")")
export FONTCONFIG_FILE="${FONTCONFIG_FILE:-$here/usr/share/fonts.conf}"
export LD_LIBRARY_PATH="$here/usr/lib${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}"
exec "$here/usr/bin/tessarolyne" "$@"
END
chmod +x "$app/AppRun"
cp "$app/usr/share/applications/$identifier.desktop" "$app/"
cp "$app/usr/share/icons/hicolor/256x256/apps/$identifier.png" "$app/"
ln -s "$identifier.png" "$app/.DirIcon"
if command -v appimagetool >/dev/null; then
    appimagetool "$app" "$build/Tessarolyne-$(uname -m).AppImage"
else
    echo "Made $app; appimagetool, which packs it, is not installed."
fi
