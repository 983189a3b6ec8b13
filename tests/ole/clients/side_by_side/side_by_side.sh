#!/usr/bin/env bash
# side_by_side.sh wine.sh folder-of-the-server folder-of-the-programs
# Runs each program with a manifest and without one. Without it, the program must not find the server.
set -euo pipefail
wine=$1
server=$2
programs=$3
prefix=$("$wine" --prefix)

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp "$server/lumenkit.ocx" "$server/lumenkit_runtime.tlb" "$programs/plain_program.exe" \
    "$programs/manifest_program.exe" "$prefix/drive_c/windows/system32/cscript.exe" "$folder"
cat >"$folder/label.vbs" <<'END'
Dim label
Set label = WScript.CreateObject("lumenkit.VLabel")
label.BulletIndent = 120
WScript.Echo label.Caption & label.BulletIndent
END
cd "$folder"

failed=0
# check what expected command...
check() {
    local what=$1 expected=$2 said
    shift 2
    said=$("$@" | tr -d '\r') || true
    [ "$said" = "$expected" ] || {
        echo "$what: said [$said], not [$expected]"
        failed=1
    }
}
check "not registered" "" "$wine" plain_program.exe
check "not registered, script" "" "$wine" cscript.exe //nologo label.vbs
check "manifest inside" VLabel "$wine" manifest_program.exe

cp "$server/lumenkit.manifest" plain_program.exe.manifest
cp "$server/lumenkit.manifest" cscript.exe.manifest
check "manifest beside" VLabel "$wine" plain_program.exe
check "manifest beside, script" VLabel120 "$wine" cscript.exe //nologo label.vbs

# A manifest without the server creates no control.
rm lumenkit.ocx
check "no server" "" "$wine" plain_program.exe
exit "$failed"
