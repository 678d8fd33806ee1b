#include "loc/Translation.h"

#include "loc/Localize.h"
#include "plat/Assertion.h"

#include <cstring>

namespace loc {

const char* Translation::get(bool raw, const char* key) {
  if (state_ == TR_NEW) {
    state_ = raw ? TR_RAW : TR_FORMATTED;
    // Once and for all, so "%%" in a plain text shows as "%" at every read,
    // and a conversion that has no place in a plain text is reported.
    if (!raw && std::strchr(text_, '%')) {
      plat::DString plain;
      format(plain, text_, nullptr);
      text_ = Localize::instance().keep(plain.takeString());
      ownsText_ = true;
    }
  } else if (raw != (state_ == TR_RAW)) {
    plat::assertionFailed(
        plat::AssertionFail("(raw == (state == TR_RAW))", __FILE__, __LINE__)
            .addDetail("Can't use same string as both raw and formatted - %s", key));
  }
  return text_;
}

void Translation::replace(const char* text, bool ownsText) noexcept {
  text_ = text;
  ownsText_ = ownsText;
  state_ = TR_NEW;
}

} // namespace loc
