#include "project/lumenkit_classes.h"

#include <array>

#include "vlabel/vlabel.h"
#include "vlabelcaption/vlabelcaption.h"
#include "vmemo/vmemo.h"
#include "voptlist/voptlist.h"

namespace lumenkit {

namespace {

// The four descriptors are constants, so they are initialised before this array copies them.
// NOLINTNEXTLINE(cppcoreguidelines-interfaces-global-init)
const std::array classes = {vlabelClass, vmemoClass, voptlistClass, vlabelCaptionClass};

constexpr UniqueIdentifier libraryIdentifier = "8e90c363-d415-47aa-afdf-c215c3c33f77";

}  // namespace

// Only the address of the other constant is used.
// NOLINTNEXTLINE(cppcoreguidelines-interfaces-global-init)
const ClassTable lumenkitClasses = {
    .libraryName = u"lumenkit",
    .classes = classes,
    .uniqueIdentifier = libraryIdentifier,
    .majorVersion = 7,
    .minorVersion = 1,
    .locale = 1033,
    .help = u"lumenkit",
    .enumerations = &runtimeEnumerations,
};

}  // namespace lumenkit
