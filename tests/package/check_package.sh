#!/usr/bin/env bash
# Builds the Debian package from a built tree and checks what a user installing it
# gets: the files in their places, dependencies found from the libraries, and the
# desktop entry, AppStream data, file type and manual pages as the desktop's own
# tools read them.
# usage: check_package.sh BUILD_DIR SOURCE_DIR VERSION APPSTREAM_ID
set -u
build=$1 source=$2 version=$3 appid=$4

for tool in cpack dpkg-deb dpkg-shlibdeps desktop-file-validate appstreamcli update-mime-database groff file lintian objdump; do
    command -v "$tool" >/dev/null || { echo "falta $tool: rode 'make deps' (instala desktop-file-utils, appstream, dpkg-dev, lintian...)"; exit 1; }
done

work=$(mktemp -d "$build/package-check.XXXXXX")
trap 'rm -rf "$work"' EXIT
failures=0
fail() { echo "FALHA: $*"; failures=$((failures + 1)); }

cpack --config "$build/CPackConfig.cmake" -G DEB -B "$work/out" >"$work/cpack.log" 2>&1 \
    || { cat "$work/cpack.log"; echo "FALHA: cpack"; exit 1; }
deb=$(ls "$work"/out/morve_*.deb 2>/dev/null | head -n1)
[ -n "$deb" ] || { cat "$work/cpack.log"; echo "FALHA: nenhum morve_*.deb"; exit 1; }

# --- control fields
field() { dpkg-deb -f "$deb" "$1"; }
[ "$(field Package)" = morve ] || fail "Package: $(field Package)"
[ "$(field Version)" = "$version" ] || fail "Version $(field Version), esperado $version"
[ -n "$(field Maintainer)" ] || fail "sem Maintainer"
# Worked out by dpkg-shlibdeps from the binaries, never listed by hand.
for lib in libc6 libstdc++6 libqt6widgets6 libqt6charts6 libgif7; do
    field Depends | grep -q "\b$lib\b" || fail "Depends sem $lib: $(field Depends)"
done
field Description | grep -q "projetista iniciante" || fail "descrição sem o texto em português"
field Description | grep -q "reinforced-concrete" || fail "descrição sem o texto em inglês"

# --- file list
dpkg-deb -c "$deb" | awk '{print $6}' | sed 's#^\./#/#' >"$work/files"
expect=(
    /usr/bin/morve /usr/bin/morve-calc
    /usr/share/morve/ajuda/Tipofday.txt /usr/share/morve/ajuda/Ajuda7.html /usr/share/morve/morve.svg
    /usr/share/doc/morve/examples/form7-armadura-simples.json
    /usr/share/doc/morve/examples/form34-tres-vaos.mor
    /usr/share/man/man1/morve.1.gz /usr/share/man/man1/morve-calc.1.gz
    /usr/share/applications/morve.desktop /usr/share/mime/packages/morve.xml
    "/usr/share/metainfo/$appid.metainfo.xml"
    /usr/share/icons/hicolor/scalable/apps/morve.svg
    /usr/share/doc/morve/copyright /usr/share/doc/morve/changelog.gz /usr/share/lintian/overrides/morve
)
for size in 16 22 24 32 48 64 128 256; do expect+=("/usr/share/icons/hicolor/${size}x${size}/apps/morve.png"); done
for f in "${expect[@]}"; do grep -qx "$f" "$work/files" || fail "falta $f"; done
grep -q '^/usr/lib/[a-z0-9_-]*/morve/morve-render\.so$' "$work/files" || fail "falta /usr/lib/ARCH/morve/morve-render.so"
# Everything the help and examples folders hold, nothing more, nothing less.
count() { grep -c "^$1[^/]*[^/]$" "$work/files"; }
[ "$(count /usr/share/morve/ajuda/)" = "$(ls "$source/data/ajuda" | wc -l)" ] || fail "páginas de ajuda: $(count /usr/share/morve/ajuda/)"
[ "$(count /usr/share/doc/morve/examples/)" = "$(ls "$source/examples" | wc -l)" ] || fail "exemplos: $(count /usr/share/doc/morve/examples/)"
grep -v '^/usr/' "$work/files" | grep -v '^/$' | grep -q . && fail "arquivos fora de /usr: $(grep -v '^/usr/' "$work/files" | grep -v '^/$')"

# --- the installed tree as the desktop's tools see it
dpkg-deb -x "$deb" "$work/root"
root=$work/root/usr/share
desktop-file-validate "$root/applications/morve.desktop" || fail "desktop-file-validate"
grep -q '^Categories=.*Education;' "$root/applications/morve.desktop" || fail "entrada fora de Education"
appstreamcli validate --no-net "$root/metainfo/$appid.metainfo.xml" >"$work/appstream.log" 2>&1 \
    || { cat "$work/appstream.log"; fail "appstreamcli validate"; }
# The pictures it names are ones `make screenshots` writes.
for shot in $(grep -o '[a-z0-9-]*\.png</image>' "$root/metainfo/$appid.metainfo.xml" | sed 's#</image>##'); do
    grep -q "\"$shot\"\|/$shot\"" "$source/src/gui/screenshots.cpp" || fail "captura $shot não é de make screenshots"
done

# The file type: a ".mor" is a MORVE project, known by name and by content.
mkdir -p "$work/mime/packages" && cp "$root/mime/packages/morve.xml" "$work/mime/packages/"
update-mime-database "$work/mime" >"$work/mime.log" 2>&1 && ! grep -qi 'error\|warning\|invalid' "$work/mime.log" \
    || { cat "$work/mime.log"; fail "update-mime-database"; }
grep -q 'application/x-morve-project:\*\.mor$' "$work/mime/globs2" || fail "*.mor fora de globs2"
[ -f "$work/mime/application/x-morve-project.xml" ] && grep -q 'Projeto do MORVE' "$work/mime/application/x-morve-project.xml" \
    || fail "tipo sem o comentário \"Projeto do MORVE\""

for size in 16 22 24 32 48 64 128 256; do
    file -b "$root/icons/hicolor/${size}x${size}/apps/morve.png" | grep -q "PNG image data, $size x $size" \
        || fail "ícone ${size}x$size: $(file -b "$root/icons/hicolor/${size}x${size}/apps/morve.png")"
done

for page in morve morve-calc; do
    warnings=$(zcat "$root/man/man1/$page.1.gz" | groff -t -man -ww -z -Tutf8 2>&1)
    [ -z "$warnings" ] || fail "man $page: $warnings"
    zcat "$root/man/man1/$page.1.gz" | grep -q '^\.SH EXIT STATUS' || fail "man $page sem EXIT STATUS"
done

# The packaged binaries are whole programs: morve-calc runs an example as installed,
# without Qt, and finds its renderer where the package puts it when a PDF is asked for.
calc=$work/root/usr/bin/morve-calc
"$calc" "$root/doc/morve/examples/form7-armadura-simples.json" >"$work/run.json" \
    || fail "morve-calc do pacote não roda o exemplo"
objdump -p "$calc" | grep -q 'NEEDED.*libQt' && fail "morve-calc carrega Qt em todo caso: $(objdump -p "$calc" | grep NEEDED)"
"$calc" --report "$work/run.pdf" "$root/doc/morve/examples/form7-armadura-simples.json" \
    && file -b "$work/run.pdf" | grep -q '^PDF document' || fail "morve-calc do pacote não grava PDF"
# Copied away from its renderer, it still calculates, and says why it writes no PDF.
mkdir -p "$work/alone" && cp "$calc" "$work/alone/"
"$work/alone/morve-calc" "$root/doc/morve/examples/form7-armadura-simples.json" >/dev/null \
    || fail "morve-calc sem o morve-render.so não calcula"
"$work/alone/morve-calc" --report "$work/alone.pdf" "$root/doc/morve/examples/form7-armadura-simples.json" \
    2>"$work/alone.log"
[ $? -eq 2 ] && grep -q 'morve-render.so' "$work/alone.log" || fail "morve-calc sem o morve-render.so: $(cat "$work/alone.log")"

# Name, version and terms, the same in both programs and in the desktop's files.
for program in morve morve-calc; do
    "$work/root/usr/bin/$program" --version >"$work/version" 2>&1 || fail "$program --version falhou"
    head -n1 "$work/version" | grep -qx "$program (MORVE) $version" || fail "$program --version: $(head -n1 "$work/version")"
    grep -q 'GPL-3.0-or-later' "$work/version" || fail "$program --version sem a licença"
done
grep -q "<project_license>GPL-3.0-or-later</project_license>" "$root/metainfo/$appid.metainfo.xml" || fail "AppStream sem project_license"
grep -q "<release version=\"$version\" date=\"[0-9-]*\"/>" "$root/metainfo/$appid.metainfo.xml" || fail "AppStream sem a versão $version"
zcat "$root/man/man1/morve.1.gz" | head -n1 | grep -q "\"MORVE $version\"" || fail "man morve sem a versão $version"
zcat "$root/doc/morve/changelog.gz" | head -n1 | grep -q "^morve ($version) " || fail "changelog sem a versão $version"

# What Debian's own checker says. Errors and warnings fail; so do the notes on
# hardening and leftover sections, which a build with Debian's flags must not earn.
lintian --display-info "$deb" 2>&1 | grep -v 'running with root privileges' >"$work/lintian.log"
grep -qE '^[EW]: |: (hardening-no-[a-z]+|binary-has-unneeded-section)' "$work/lintian.log" \
    && fail "lintian:"$'\n'"$(cat "$work/lintian.log")"

[ "$failures" -eq 0 ] && echo "pacote $(basename "$deb") conferido"
exit $((failures > 0))
