# What both scripts share; they are called with these arguments.
wine=$1
server=$(realpath "$2")
folder=$(realpath "$3")

# dump name: all that the registry says of classes, as text.
dump() {
    rm -f "$folder/$1.reg"
    "$wine" regedit /E "Z:$folder/$1.reg" HKEY_CLASSES_ROOT
    iconv -f UTF-16 -t UTF-8 "$folder/$1.reg" | tr -d '\r' >"$folder/$1.txt"
    # The platform's own classes are there in any case.
    [ "$(grep -c '^\[' "$folder/$1.txt")" -gt 1000 ]
}
