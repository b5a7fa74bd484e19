#!/usr/bin/env bash
# Installs the build into a temporary DESTDIR under /usr and checks that exactly the expected files
# land there (the translations among them), that the installed programs run, and that the desktop
# entry, the AppStream metadata and the icons agree with each other and with the project; then runs
# the desktop entry and AppStream validators. Exits 77 (skipped) when a validator is not installed
# and everything else passed.
# Then builds the Debian package of these programs with debian/ into the temporary folder and lints it
# (nothing is installed into the system).
# Usage: install_test.sh BUILD_DIR SOURCE_DIR PROJECT_VERSION
set -euo pipefail
build=$(cd "$1" && pwd) source=$(cd "$2" && pwd) version=$3
id=io.github.brinto.Brinto
root=$(mktemp -d)
# cmake --install rewrites the build's install manifest, which `make uninstall` reads: keep the real one.
manifest=$build/install_manifest.txt
[ -f "$manifest" ] && cp "$manifest" "$root.manifest"
trap 'rm -rf "$root"; if [ -f "$root.manifest" ]; then mv "$root.manifest" "$manifest"; else rm -f "$manifest"; fi' EXIT
fail() { echo "FAIL: $*" >&2; exit 1; }

DESTDIR=$root cmake --install "$build" --prefix /usr >/dev/null
cd "$root/usr"

doc=share/doc/brinto
expected=(bin/brinto bin/brinto-cli "$doc/Brinto.htm" "$doc/LICENSE"
  share/man/man1/brinto.1 share/man/man1/brinto-cli.1
  "share/applications/$id.desktop" "share/metainfo/$id.metainfo.xml"
  "share/icons/hicolor/scalable/apps/$id.svg"
  share/bash-completion/completions/brinto-cli share/zsh/vendor-completions/_brinto-cli
  share/fish/vendor_completions.d/brinto-cli.fish)
sizes=(16 22 24 32 48 64 128 256)
for size in "${sizes[@]}"; do expected+=("share/icons/hicolor/${size}x$size/apps/$id.png"); done
# One compiled translation for each translation kept in the repository.
languages=()
for ts in "$source"/translations/brinto_*.ts; do
  language=$(basename "$ts" .ts); language=${language#brinto_}
  languages+=("$language")
  expected+=("share/brinto/translations/brinto_$language.qm")
done
[ ${#languages[@]} -ge 5 ] || fail "fewer than five translations in $source/translations"
# The pictures the user guide shows sit beside it, as it refers to them.
while read -r image; do
  [ -n "$image" ] && expected+=("$doc/$image")
done < <(grep -o 'src="[^":]*\.png"' "$doc/Brinto.htm" | sed 's/^src="//; s/"$//' | sort -u)
diff <(printf '%s\n' "${expected[@]}" | sort) <(find . -type f -printf '%P\n' | sort) \
  || fail "installed files differ from the expected list (< missing, > unexpected)"

for program in bin/brinto bin/brinto-cli; do [ -x "$program" ] || fail "$program is not executable"; done
# Each translation is one lrelease made (a .qm begins with its magic number) and holds texts.
for language in "${languages[@]}"; do
  qm=share/brinto/translations/brinto_$language.qm
  [ "$(head -c 16 "$qm" | od -An -tx1 | tr -d ' \n')" = 3cb86418caef9c95cd211cbf60a1bddd ] || fail "$qm is not a translation"
  [ "$(stat -c %s "$qm")" -gt 1000 ] || fail "$qm holds no translated text"
done
[ "$(bin/brinto --version)" = "brinto $version" ] || fail "installed brinto does not report version $version"
[ "$(bin/brinto-cli --memory 2 enter 3 +)" = "5." ] || fail "installed brinto-cli does not calculate 2 + 3"

# Each PNG is as large as the folder it sits in says (width and height from its IHDR header).
for size in "${sizes[@]}"; do
  png=share/icons/hicolor/${size}x$size/apps/$id.png
  read -r w1 w2 h1 h2 < <(od -An -tu1 -j18 -N6 "$png" | awk '{print $1, $2, $5, $6}')
  [ "$(head -c 8 "$png" | od -An -tx1 | tr -d ' ')" = 89504e470d0a1a0a ] || fail "$png is not a PNG"
  [ $((w1 * 256 + w2)) -eq "$size" ] && [ $((h1 * 256 + h2)) -eq "$size" ] || fail "$png is not ${size}x$size"
done

desktop=share/applications/$id.desktop
metainfo=share/metainfo/$id.metainfo.xml
grep -qx "Exec=brinto" "$desktop" || fail "the desktop entry does not start brinto"
grep -qx "Icon=$id" "$desktop" || fail "the desktop entry does not name the icon $id"
grep -q "<id>$id</id>" "$metainfo" || fail "the metadata's id is not $id"
grep -q "<launchable type=\"desktop-id\">$id.desktop</launchable>" "$metainfo" \
  || fail "the metadata does not launch $id.desktop"
newest=$(grep -o '<release version="[^"]*"' "$metainfo" | head -1 | sed 's/.*="//; s/"$//')
[ "$newest" = "$version" ] || fail "the newest release in the metadata is $newest, the project is $version"
# Every screenshot is one of docs/screenshots, at its place in the repository.
shots=$(grep -o '<image>[^<]*</image>' "$metainfo" | sed 's/<[^>]*>//g')
[ -n "$shots" ] || fail "the metadata has no screenshots"
for url in $shots; do
  path=${url#https://raw.githubusercontent.com/brinto/brinto/main/}
  [ "$path" != "$url" ] && [ -f "$source/$path" ] && [[ $path == docs/screenshots/*.png ]] \
    || fail "screenshot $url is not a picture in docs/screenshots"
done

# The completions parse in their shells, and bash's offers key names by their start.
bash -n share/bash-completion/completions/brinto-cli || fail "the bash completion does not parse"
offered=$(bash -c 'source share/bash-completion/completions/brinto-cli; COMP_LINE="brinto-cli --memory sq"
  COMP_POINT=${#COMP_LINE}; COMP_WORDS=(brinto-cli --memory sq); COMP_CWORD=2; _brinto_cli; echo "${COMPREPLY[*]}"')
[[ " $offered " == *" sqrt "* && " $offered " != *" sin "* ]] || fail "bash completes 'sq' to: $offered"
for shell in zsh fish; do
  if command -v $shell >/dev/null; then
    file=$(ls share/$shell/*/*brinto-cli*)
    $shell -n "$file" || fail "the $shell completion does not parse"
  fi
done

missing=()
# The Debian package, made by debian/ from these programs: the same files with the manual pages
# compressed and the licence in Debian's copyright file, the libraries linked as shared ones and
# named in its dependencies, and no error from lintian (its warnings are printed).
# A sanitizer build's programs are not what a package holds: its release build checks the package.
if grep -q '^BRINTO_SANITIZE:BOOL=ON$' "$build/CMakeCache.txt"; then
  echo "the package is checked from the release build, not this sanitizer build"
elif command -v dpkg-buildpackage >/dev/null && command -v dh >/dev/null && command -v lintian >/dev/null; then
  mkdir -p "$root/pkg/brinto"
  cp -r "$source/debian" "$root/pkg/brinto/"
  (cd "$root/pkg/brinto" && BRINTO_PREBUILT=$build dpkg-buildpackage -us -uc -b >"$root/pkg/log" 2>&1) \
    || fail "dpkg-buildpackage: $(tail -20 "$root/pkg/log")"
  deb=$(echo "$root"/pkg/brinto_"$version"_*.deb)
  [ -f "$deb" ] || fail "no brinto_${version}_*.deb"
  packaged=$(find . -type f -printf 'usr/%P\n' | sed 's|^\(usr/share/man/.*\)$|\1.gz|; /\/LICENSE$/d' | sort)
  diff <(printf '%s\n' "$packaged" usr/share/doc/brinto/copyright usr/share/doc/brinto/changelog.gz | sort) \
    <(dpkg-deb -c "$deb" | awk '!/^d/ {sub("^\\./", "", $6); print $6}' | sort) \
    || fail "the package's files differ from the installed ones"
  depends=$(dpkg-deb -f "$deb" Depends)
  names=$(sed 's/ *([^)]*)//g; s/ *[,|] */\n/g' <<<"$depends")
  for library in libqt6widgets6 libqt6gui6 libqt6core6 libsqlite3-0 libedit2 libstdc++6 libc6; do
    grep -qxF "$library" <<<"$names" || fail "the package does not depend on $library: $depends"
  done
  lint=$(lintian --fail-on error "$deb" 2>&1) || fail "lintian: $lint"
  lint=$(grep -v 'with root privileges' <<<"$lint" || true)
  [ -z "$lint" ] || echo "lintian warnings and notes: $lint"
else
  missing+=(dpkg-buildpackage debhelper lintian)
fi
if command -v desktop-file-validate >/dev/null; then
  # Hints too: a second main category, for one, would list the program twice in menus.
  out=$(desktop-file-validate "$desktop" 2>&1) || fail "desktop-file-validate: $out"
  [ -z "$out" ] || fail "desktop-file-validate: $out"
else
  missing+=(desktop-file-validate)
fi
if command -v appstreamcli >/dev/null; then
  out=$(appstreamcli validate --no-net --pedantic "$metainfo" 2>&1) || fail "appstreamcli validate: $out"
else
  missing+=(appstreamcli)
fi
if [ ${#missing[@]} -gt 0 ]; then
  echo "SKIPPED: not installed: ${missing[*]} (scripts/install-deps.sh installs them)"
  exit 77
fi
echo "installed files, programs, icons and metadata: all as expected"
