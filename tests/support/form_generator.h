// Generates forms as designers write them, with their companions.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <random>
#include <span>
#include <string>
#include <string_view>

#include "forms/document.h"

namespace lumenkit::testing {

/// How a form stores its characters. A new row of the table is all that a further one needs.
struct FormEncoding {
    const char* name;
    int codePage;           ///< with which the form is read
    std::string_view mark;  ///< at the start of the form
    /// Words with characters beyond ASCII: in the form, and in the strings of its companion.
    std::array<std::string_view, 3> words;
    std::array<std::string_view, 3> companionWords;
};
std::span<const FormEncoding> FormEncodings();

/// The number of values of ScaleMode.
inline constexpr int scaleModes = 8;

enum class CompanionState {
    None,       ///< the form refers to none
    Present,    ///< under the name to which the form refers
    OtherCase,  ///< under this name in upper case
    Missing,
    TooShort,  ///< the last record is cut off or shortened
};

/// A choice that a form must follow. The generator makes all others.
struct FormWish {
    std::optional<int> scaleMode = {};  ///< of the form and of all picture boxes
    std::optional<CompanionState> companion = {};
};

struct GeneratedForm {
    std::string file;  ///< "frmOrder12.frm"
    std::string form;
    int codePage = forms::defaultCodePage;
    CompanionState state = CompanionState::None;
    std::string companion;
    std::string companionFile;  ///< its name on the disk

    /// Whether nothing of the form is lost, so that it opens without a warning.
    bool IsSound() const {
        return state != CompanionState::Missing && state != CompanionState::TooShort;
    }
    /// Throws FormError if the form was damaged.
    forms::Document Parse() const;
    /// Writes the form and, if it is there, its companion. Returns the path of the form.
    std::filesystem::path WriteTo(const std::filesystem::path& folder) const;
};

/// The same seed and wishes lead to the same forms. A form with another wish for its scale mode
/// differs from it only in the lines that depend on the units.
class FormGenerator {
 public:
    explicit FormGenerator(std::uint32_t seed) : random_(seed) {}

    GeneratedForm Form(const FormWish& wish = {});
    /// Damages a form: deletes lines, swaps values and changes bytes.
    GeneratedForm Damaged(GeneratedForm form);

    std::size_t Below(std::size_t bound) { return random_() % bound; }
    bool OneIn(std::size_t chances) { return Below(chances) == 0; }

 private:
    void Damage(std::string& bytes);

    std::mt19937 random_;
};

}  // namespace lumenkit::testing
