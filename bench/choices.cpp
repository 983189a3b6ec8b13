#include "bench/choices.h"

#include <utility>

#include "frame/numbers.h"

namespace lumenkit::bench {

Text Choice(int item, TextView caption) {
    return Text(caption) + Decimal(item);
}

Text Choices(int items, TextView caption) {
    Text contents;
    for (int item = 0; item < items; ++item) {
        contents += u"|k" + Decimal(item) + u";" + Choice(item, caption);
    }
    return contents.substr(1);
}

Side RepeatedForMany(int items, std::function<void()> once) {
    return {.round =
                [once = std::move(once), items] {
                    for (int done = 0; done < manyChoices; done += items) {
                        once();
                    }
                },
            .units = manyChoices};
}

}  // namespace lumenkit::bench
