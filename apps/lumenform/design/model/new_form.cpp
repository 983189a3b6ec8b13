#include "apps/lumenform/design/model/new_form.h"

#include <algorithm>
#include <array>

#include "apps/lumenform/design/model/libraries.h"
#include "frame/utf8.h"

namespace lumenkit::lumenform {

namespace {

bool IsLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool MayStandInName(char character) {
    return IsLetter(character) || (character >= '0' && character <= '9') || character == '_';
}

std::string LibraryLine(const ClassTable& classes) {
    return "Object = \"" + LibraryName(classes) + "\"; \"" + ToUtf8(LibraryFile(classes)) + '"';
}

}  // namespace

std::string FormName(std::string_view fileStem) {
    constexpr std::size_t longest = 40;
    std::string name;
    std::ranges::copy_if(fileStem, std::back_inserter(name), MayStandInName);
    if (name.empty() || !IsLetter(name.front())) {
        name.insert(0, "frm");
    }
    return name.substr(0, longest);
}

std::string NewForm(std::string_view name, const ClassTable& classes) {
    const std::string formName(name);
    const auto lines = std::to_array<std::string>({
        "VERSION 5.00",
        LibraryLine(classes),
        "Begin VB.Form " + formName + ' ',
        "   Caption         =   \"" + formName + '"',
        "   ClientHeight    =   3600",
        "   ClientLeft      =   60",
        "   ClientTop       =   345",
        "   ClientWidth     =   4800",
        "   LinkTopic       =   \"Form1\"",
        "   ScaleHeight     =   3600",
        "   ScaleWidth      =   4800",
        "   StartUpPosition =   3  'Windows Default",
        "End",
        "Attribute VB_Name = \"" + formName + '"',
        "Attribute VB_GlobalNameSpace = False",
        "Attribute VB_Creatable = False",
        "Attribute VB_PredeclaredId = True",
        "Attribute VB_Exposed = False",
        "Option Explicit",
    });
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

}  // namespace lumenkit::lumenform
