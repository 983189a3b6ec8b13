#include "frame/module_errors.h"

#include "frame/numbers.h"

namespace lumenkit {

std::int16_t ModuleErrors::ReportError(TextView moduleFileName, TextView procedureName,
                                       const Object* /*formObject*/, std::int32_t errorNumber,
                                       std::int32_t errorLine, TextView description) {
    interaction_.Beep();
    Text message = u"Exe = ";
    message.append(application_.ExeName()).append(crLf);
    message.append(u"Form = ").append(moduleFileName).append(crLf);
    message.append(u"Proc = ").append(procedureName).append(crLf);
    message.append(u"Error Line =").append(Decimal(errorLine)).append(crLf);
    message.append(u"Error Code =").append(Decimal(errorNumber)).append(crLf);
    message.append(u"Message: ").append(description);
    interaction_.MsgBox(message, host::MessageStyle::Critical, u"LUMENKIT ERROR");
    return 0;
}

}  // namespace lumenkit
