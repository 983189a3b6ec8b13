#include "apps/lumenform/design/properties/encoding_offer.h"

#include <QMenu>
#include <utility>
#include <vector>

#include "apps/lumenform/design/model/code_page_name.h"
#include "apps/lumenform/design/model/refusal.h"
#include "forms/change_encoding.h"
#include "forms/code_page.h"
#include "forms/known_code_pages.h"

namespace lumenkit::lumenform {

namespace {

// Whether the form and the text can be written in the code page.
bool CanHold(const forms::Document& document, int codePage, TextView text) {
    try {
        static_cast<void>(forms::CodePage(codePage).Encode(text));
        static_cast<void>(forms::InCodePage(document, codePage));
        return true;
    } catch (const forms::Unmappable&) {
        return false;
    } catch (const forms::FormError&) {
        return false;
    }
}

// Returns the code pages that can hold the form and the text, without UTF-8.
std::vector<const forms::KnownCodePage*> PagesFor(const forms::Document& document, TextView text) {
    std::vector<const forms::KnownCodePage*> pages;
    for (const forms::KnownCodePage& page : forms::KnownCodePages()) {
        if (page.number != forms::utf8CodePage && page.number != document.FormCodePage() &&
            CanHold(document, page.number, text)) {
            pages.push_back(&page);
        }
    }
    return pages;
}

}  // namespace

EncodingOffer::EncodingOffer(FormDesign& design, Notice& notice, std::function<Text()> text,
                             std::function<void()> retry)
    : QObject(&notice),
      design_(design),
      notice_(notice),
      text_(std::move(text)),
      retry_(std::move(retry)) {
    connect(&notice, &Notice::Utf8Wanted, this, [this] { WriteIn(forms::utf8CodePage); });
    connect(&notice, &Notice::OtherPageWanted, this, &EncodingOffer::ShowPages);
}

void EncodingOffer::WriteIn(int codePage) {
    if (const auto why = Attempt([&] { design_.WriteIn(codePage); })) {
        notice_.Say(*why);
    } else {
        retry_();
    }
}

void EncodingOffer::ShowPages() {
    QMenu menu(&notice_);
    const Text text = text_();
    for (const forms::KnownCodePage* const page : PagesFor(design_.Document(), text)) {
        menu.addAction(CodePageName(page->number), this, [this, page] { WriteIn(page->number); });
    }
    if (menu.isEmpty()) {
        menu.addAction(tr("No code page has all characters of the form"))->setEnabled(false);
    }
    menu.exec(notice_.mapToGlobal(notice_.rect().bottomLeft()));
}

}  // namespace lumenkit::lumenform
