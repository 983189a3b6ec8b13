// Shared by all scripts. Values are compared without conversion: "1" is not 1.
function equal(what, expected, found) {
    if (expected !== found) {
        WScript.Echo("failed: " + what + " is " + typeof found + " [" + found + "], not [" + expected + "]");
    }
}

// A font takes the nearest size of the screen, so its size may differ by a pixel.
function equalSize(what, expected, found) {
    if (typeof found !== "number" || Math.abs(expected - found) > 0.75) {
        WScript.Echo("failed: " + what + " is [" + found + "], not about [" + expected + "]");
    }
}

// Some engines pass on the codes of automation, others the numbers that scripts use.
var automationCodes = {3: 438, 5: 13, 6: 438, 10: 6, 14: 450, 15: 449};

function numberOf(error) {
    var low = error.number & 0xFFFF, facility = (error.number >> 16) & 0x1FFF;
    return facility === 2 ? automationCodes[low] : low;
}

// Runs an action that must raise the error.
function raises(what, number, action) {
    try {
        action();
    } catch (error) {
        if (numberOf(error) !== number) {
            WScript.Echo("failed: " + what + " raised " + error.number.toString(16) + ", not " + number);
        }
        return;
    }
    WScript.Echo("failed: " + what + " raised nothing");
}

function box(text) {
    WScript.Echo("box: " + text);
}

