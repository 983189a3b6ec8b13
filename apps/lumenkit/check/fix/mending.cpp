#include "apps/lumenkit/check/fix/mending.h"

namespace lumenkit::check {

Text Edited(TextView text, const TextEdits& edits) {
    Text edited;
    std::size_t done = 0;
    for (const TextEdit& edit : edits) {
        edited += text.substr(done, edit.begin - done);
        edited += edit.text;
        done = edit.end;
    }
    return edited += text.substr(done);
}

std::size_t OffsetAfter(const TextEdits& edits, std::size_t offset) {
    std::size_t after = offset;
    for (const TextEdit& edit : edits) {
        if (edit.end <= offset && edit.begin < offset) {
            after = after + edit.text.size() - (edit.end - edit.begin);
        }
    }
    return after;
}

}  // namespace lumenkit::check
