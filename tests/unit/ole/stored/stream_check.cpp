#include "tests/unit/ole/stored/stream_check.h"

#include <exception>
#include <memory>
#include <variant>

#include "frame/runtime_error.h"
#include "project/lumenkit_classes.h"
#include "runtime/memory/font.h"
#include "runtime/memory/form.h"
#include "runtime/memory/hosted_control.h"
#include "runtime/memory/property_bag.h"
#include "runtime/ole/stored/stream_format.h"
#include "tests/model/input_bytes.h"
#include "tests/support/sealed_stream.h"

namespace lumenkit::testing {

namespace {

struct ToValue {
    const memory::Form& form;

    Value operator()(std::monostate /*nothing*/) const { return Empty(); }
    Value operator()(const stored::FontRecord& font) const {
        constexpr double unitsPerPoint = 10000;
        try {
            return form.NewFont(font.name,
                                static_cast<float>(static_cast<double>(font.size) / unitsPerPoint));
        } catch (const RuntimeError&) {
            return Empty();  // no font has this size
        }
    }
    template <typename T>
    Value operator()(const T& value) const {
        return value;
    }
};

// A control with a value that it cannot use reports an error, and its save fails.
void Save(memory::HostedControl& control) {
    memory::Log& log = control.GetForm().GetLog();
    log.Clear();
    try {
        control.Save();
    } catch (const RuntimeError& error) {
        if (error.Number() != static_cast<std::int32_t>(ErrorNumber::SavingFailed) ||
            log.Messages().empty()) {
            throw;
        }
    }
}

void StartAndSave(TextView className, const stored::Records& records) {
    memory::Form form(lumenkitClasses);
    memory::PropertyBag bag;
    for (const stored::Record& record : records) {
        bag.Store(record.name, std::visit(ToValue{form}, record.value));
    }
    const auto control = memory::PlaceControl(form, className, {}, &bag);
    control->Paint();
    Save(*control);
}

}  // namespace

std::string StreamFault(const std::vector<std::uint8_t>& stream) {
    try {
        const stored::Records records = stored::Decode(stream);
        const std::vector<std::uint8_t> written = stored::Encode(records);
        if (stored::Encode(stored::Decode(written)) != written) {
            return "what was read is not read back";
        }
        for (const TextView className : {u"VLabel", u"VMemo", u"VOptList"}) {
            StartAndSave(className, records);
        }
    } catch (const stored::Corrupt&) {
        return {};
    } catch (const std::exception& error) {
        return error.what();
    }
    return {};
}

std::vector<std::uint8_t> StreamFromBytes(std::string_view bytes) {
    InputBytes input(bytes);
    const bool isWhole = input.Byte() != 0;
    if (isWhole) {
        return {input.Rest().begin(), input.Rest().end()};
    }
    std::vector<std::uint8_t> stream = {'L', 'K', 'P', 'B', 1, 0};
    stream.push_back(input.Byte());
    stream.push_back(0);
    const std::string_view records = input.Rest();
    for (unsigned shift = 0; shift < 32; shift += 8) {
        stream.push_back(static_cast<std::uint8_t>(records.size() >> shift));
    }
    stream.insert(stream.end(), records.begin(), records.end());
    stream.resize(stream.size() + stored::encodedCheckSize);
    return Sealed(std::move(stream));
}

}  // namespace lumenkit::testing
