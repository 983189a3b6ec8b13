// A form file in memory: its text, its tree and its binary companion.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/block.h"
#include "forms/companion.h"
#include "forms/encoding.h"
#include "forms/form_error.h"
#include "forms/known_files.h"
#include "forms/parser.h"
#include "forms/property.h"
#include "forms/warning.h"
#include "forms/writer.h"
#include "frame/text.h"

namespace lumenkit::forms {

/// Returns the bytes of the companion, given as a plain file name in the folder of the form, or
/// nullopt if there is no such file. Called at most once, and only if the form refers to a
/// companion. A FormError that it throws counts as no file, and its description becomes a warning.
/// Other exceptions propagate to the caller of Parse. An empty function stands for no file.
using CompanionReader = std::function<std::optional<std::string>(const std::string& fileName)>;

/// A form, control, page or document file (.frm, .ctl, .pag, .dob). Writing an unedited document
/// returns the bytes that were read. An edit that throws changes nothing.
class Document {
 public:
    /// Reads a document. `name` is the file name for error messages, in UTF-8. `codePage` is the
    /// code page of the companion's strings, and that of the form unless the form is detected as
    /// UTF-8; by default it is guessed (see Encoding::Of). Throws FormError for input that is not a
    /// form. Lines, values and references that cannot be understood are kept, with a warning.
    static Document Parse(std::string name, std::string_view bytes,
                          const CompanionReader& readCompanion, int codePage = guessedCodePage);

    /// Returns the document with these bytes, which Write returned for this document or for an
    /// earlier state of it. Throws FormError as Parse does.
    Document WithBytes(const FormBytes& bytes) const { return WithBytes(bytes, encoding_); }
    /// Returns the document with these bytes, in an encoding that it has or had.
    Document WithBytes(const FormBytes& bytes, const Encoding& encoding) const;

    /// The warnings so far, in the order of the file, one for each place.
    std::vector<Warning> Warnings() const;
    /// Adds a warning about a value that the caller could not use. Ignored if its place has one.
    void Warn(Position place, std::string text) const;
    /// Adds a warning at the value of a property. Ignored for an UnreadValue, which has one.
    void Warn(const Property& property, std::string text) const;

    const std::string& Name() const { return name_; }
    /// Changes the file name of the document and sets the companion's name to the default for it,
    /// unless the companion is missing. Saving the document then does not change the files with the
    /// old names.
    void Rename(std::string name);
    /// Also chooses the companion's name.
    void Rename(std::string name, std::string companionName);
    const Encoding& TextEncoding() const { return encoding_; }
    /// The number of the form's code page, 65001 for UTF-8.
    int FormCodePage() const { return encoding_.FormCodePage(); }
    /// The number of the code page of the companion's strings; never 65001.
    int CompanionCodePage() const { return encoding_.CompanionPage().Number(); }
    /// The guess by which the code page was chosen; nullopt if it was named or did not matter.
    const std::optional<CodePageGuess>& Guess() const { return encoding_.Guess(); }

    /// The outermost block: the form itself.
    Block& Root() const { return *form_.root; }
    /// Renames the form itself, including its attribute VB_Name.
    void RenameForm(TextView name);
    const std::vector<LibraryReference>& Libraries() const { return form_.libraries; }
    /// Adds a line `Object = ...` after the existing ones.
    void AddLibrary(TextView library, TextView file);
    /// The text after the outermost block, that is the attribute lines and the code, and its
    /// position in the file that was read.
    const Text& Tail() const { return form_.tail; }
    Position TailPlace() const { return form_.tailPlace; }

    /// Returns the text of a string property, whether it is stored in the form or in the companion.
    /// Throws FormError for a property of another kind and for a reference to a record that is not
    /// a string. Empty for a lost record.
    Text TextOf(const Property& property) const;
    /// Returns the record of the companion that a property refers to, including its header. Throws
    /// FormError for a property that is not a reference. Empty for a lost record.
    std::string_view RecordOf(const Property& property) const;

    /// Returns whether the reference leads nowhere: the companion is missing or too short, or the
    /// reference names another file than the first one of the form. The reference is kept.
    bool IsLost(const Reference& reference) const;

    /// Appends a record, including its header, to the companion and returns the reference to it.
    /// Throws FormError when the companion is full, and when a lost reference could afterwards lead
    /// to the new record.
    Reference AddRecord(std::string_view record);

    /// Makes the companion begin with these bytes, which hold the records of other forms, too. Own
    /// records that differ from them follow behind, and their references change. Throws FormError
    /// when the companion is full, and when a lost reference could then lead to a record of others.
    void MoveBehind(std::string_view kept);

    /// Returns the companion's file name in UTF-8: the name that the form refers to or, without a
    /// reference, the default name for the form.
    std::string CompanionName() const { return companionName_; }
    /// Returns a file name in the bytes of the form (see Encoding::NameBytes).
    std::string NameBytes(const std::string& name) const { return encoding_.NameBytes(name); }

    /// Returns the bytes of the form and of its companion. Appends the strings that edits moved to
    /// the companion. Throws FormError for a text that the encoding cannot represent, with the
    /// position in the written text, for a form in a code page that would be read as UTF-8, and for
    /// a new string if AddRecord would throw.
    FormBytes Write() const;

    /// The files that Load read and Save wrote for this document and for earlier states of it.
    KnownFiles& Files() const { return *files_; }

 private:
    Document(std::string name, Encoding encoding, ParsedForm form);

    void UseCompanion(std::string name);
    static Document Read(std::string name, Encoding encoding, std::string_view bytes,
                         const CompanionReader& readCompanion);
    void ReadCompanion(const CompanionReader& readCompanion);
    bool IsInCompanion(const Reference& reference) const;
    bool IsOtherFile(TextView file) const;
    void RememberOtherFile(TextView file);
    std::vector<PlacedReference> OwnReferences();
    void Check(const PlacedReference& placed);
    [[noreturn]] void Fail(Position position, const std::string& text) const;

    std::string name_;
    Encoding encoding_;
    Spelling spelling_;
    ParsedForm form_;
    std::string companionName_;
    Companion companion_;
    std::shared_ptr<KnownFiles> files_ = std::make_shared<KnownFiles>();
    std::vector<Text> otherFiles_;  // that references name instead of the companion
    bool isCompanionMissing_ = false;
    bool hasLostRecords_ = false;
    mutable std::map<std::pair<std::size_t, std::size_t>, std::string> warnings_;  // by place
};

}  // namespace lumenkit::forms
