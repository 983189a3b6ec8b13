// What all scripts use. No conversion takes place: "1" is not 1.
function equal(what, expected, found) {
    if (expected !== found) {
        WScript.Echo("failed: " + what + " is " + typeof found + " [" + found + "], not [" + expected + "]");
    }
}

// Runs what should raise the error.
function raises(what, number, action) {
    try {
        action();
    } catch (error) {
        if ((error.number & 0xFFFF) !== number) {
            WScript.Echo("failed: " + what + " raised " + (error.number & 0xFFFF) + ", not " + number);
        } else if (error.description === "") {
            WScript.Echo("failed: " + what + " is not explained");
        }
        return;
    }
    WScript.Echo("failed: " + what + " raised nothing");
}

function box(text) {
    WScript.Echo("box: " + text);
}

