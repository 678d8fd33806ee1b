#include "smisc/DsObjectPicker.h"

#include "plat/LogSrc.h"

namespace smisc {

namespace {
plat::LogSrc pickerLog("DsObjectPicker");
}

void DsObjectPicker::logResults() const {
  pickerLog.info("Got %d results", static_cast<int>(results.size()));
  for (std::size_t i = 0; i < results.size(); ++i) {
    const PickedObject& object = results[i];
    int index = static_cast<int>(i);
    if (object.sid)
      pickerLog.info("[%d] SID=%s", index, os::sidToString(*object.sid).get());
    pickerLog.info("[%d] name=%s UPN=%s class=%s", index, object.name.orEmpty(),
                   object.upn.orEmpty(), object.isGroup ? "group" : "user");
    pickerLog.info("[%d] path=%s", index, object.path.orEmpty());
  }
}

} // namespace smisc
