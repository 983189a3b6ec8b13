#include "runtime/ole/values/exception_info.h"

#include "runtime/ole/values/basic_string.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

void Describe(const RuntimeError& error, EXCEPINFO& exception) {
    exception = {};
    BasicString description(error.Description());
    exception.bstrSource = BasicString(u"lumenkit").Detach();
    exception.bstrDescription = description.Detach();
    exception.scode = ResultOf(error);
}

ExceptionInfo::~ExceptionInfo() {
    SysFreeString(information_.bstrDescription);
    SysFreeString(information_.bstrSource);
    SysFreeString(information_.bstrHelpFile);
}

void ExceptionInfo::Raise() {
    if (information_.pfnDeferredFillIn != nullptr) {
        information_.pfnDeferredFillIn(&information_);
    }
    const TextView description = TextOf(information_.bstrDescription);
    throw information_.wCode != 0 ? RuntimeError(information_.wCode, Text(description))
                                  : ErrorOf(information_.scode, description);
}

}  // namespace lumenkit::ole
