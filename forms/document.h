// A form file in memory: its text with the tree over it, and its binary companion.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/block.h"
#include "forms/companion.h"
#include "forms/encoding.h"
#include "forms/form_error.h"
#include "forms/parser.h"
#include "forms/property.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// The bytes of a form and of its companion.
struct FormBytes {
    std::string form;
    std::string companion;
};

/// Gives the bytes of the companion, a plain file name that lies beside the form. Called at most
/// once, and only if the form refers to it. What it throws goes on to who called Parse.
using CompanionReader = std::function<std::string(const std::string& fileName)>;

/// A form, control, page or document file (.frm, .ctl, .pag, .dob). Writing one that was not edited
/// gives the bytes that were read. An edit that throws has changed nothing.
class Document {
 public:
    /// `name` is the file's name for errors, in UTF-8. `codePage` is what the form is written in
    /// unless it turns out to be UTF-8 (Encoding::Of), and what the companion's strings are in.
    /// Throws FormError for what cannot be read: nothing is half loaded.
    static Document Parse(std::string name, std::string_view bytes,
                          const CompanionReader& readCompanion, int codePage = defaultCodePage);

    /// The document that these bytes stand for, as Write gave them for this one or for an earlier
    /// state of it. Throws FormError as Parse does.
    Document WithBytes(const FormBytes& bytes) const;

    const std::string& Name() const { return name_; }
    /// The document goes by another file name from now on, and its companion by the one that
    /// designers would give it then: saving it leaves the files of the former name alone.
    void Rename(std::string name);
    /// The code page's number, 65001 for UTF-8.
    int FormCodePage() const { return encoding_.FormCodePage(); }
    /// Of the strings in the companion; never 65001.
    int CompanionCodePage() const { return encoding_.CompanionPage().Number(); }

    /// The outermost block: the form itself.
    Block& Root() const { return *form_.root; }
    /// Gives the form itself another name, also in its attribute VB_Name.
    void RenameForm(TextView name);
    const std::vector<LibraryReference>& Libraries() const { return form_.libraries; }
    /// Adds a line `Object = ...` behind the others.
    void AddLibrary(TextView library, TextView file);
    /// Everything behind the outermost block, attribute lines and code, as it stands, and where it
    /// began in the file that was read.
    const Text& Tail() const { return form_.tail; }
    Position TailPlace() const { return form_.tailPlace; }

    /// The text of a string property, wherever it is kept. Throws FormError for a property of
    /// another kind and for a reference to what is no string.
    Text TextOf(const Property& property) const;
    /// The companion's record that a property refers to, as it stands. Throws FormError for a
    /// property that is no reference.
    std::string_view RecordOf(const Property& property) const;

    /// Appends a record, header and all, to the companion and gives the reference to it. Throws
    /// FormError when the companion is full.
    Reference AddRecord(std::string_view record);

    /// The companion's file name in UTF-8: the one that the form refers to, otherwise the one that
    /// designers would give it.
    std::string CompanionName() const { return companionName_; }

    /// Strings that were moved to the companion by edits are appended to it. Throws FormError for a
    /// text that the encoding cannot carry, with the place in the text as it would be written, and
    /// for one that would be taken for UTF-8 when it is read again.
    FormBytes Write() const;

 private:
    Document(std::string name, Encoding encoding, ParsedForm form);

    void UseCompanion(std::string name);
    static Document Read(std::string name, Encoding encoding, std::string_view bytes,
                         const CompanionReader& readCompanion);
    void ReadCompanion(const CompanionReader& readCompanion);
    void RequireOneCompanion() const;
    void Check(const PlacedReference& placed) const;
    [[noreturn]] void Fail(Position position, const std::string& text) const;

    std::string name_;
    Encoding encoding_;
    ParsedForm form_;
    std::string companionName_;
    Companion companion_;
};

}  // namespace lumenkit::forms
