# Shared by register.sh and unregister.sh, which are called with these arguments.
wine=$1
server=$(realpath "$2")
folder=$(realpath "$3")

# dump name: writes all class entries of the registry to a text file.
dump() {
    rm -f "$folder/$1.reg"
    "$wine" regedit /E "Z:$folder/$1.reg" HKEY_CLASSES_ROOT
    iconv -f UTF-16 -t UTF-8 "$folder/$1.reg" | tr -d '\r' >"$folder/$1.txt"
    # A valid dump contains the platform's own classes.
    [ "$(grep -c '^\[' "$folder/$1.txt")" -gt 1000 ]
}
