#include "mui/MuEdit.h"
#include "plat/NumParse.h"

#include <cstring>

namespace mui {

bool MuEdit::NumericFilter::accept(MuEdit*, const char* newText, int) {
  if (*newText == '\0')
    return true;
  // A sign alone may stand while a negative number is being typed.
  if (min_ < 0 && std::strcmp(newText, "-") == 0)
    return true;
  std::int32_t value = 0;
  const char* cursor = newText;
  if (!plat::tryParseInt(value, cursor, 10) || *cursor != '\0' || std::strcmp(newText, "-0") == 0)
    return false;
  // No leading zeros.
  const char* digits = newText + (*newText == '-' || *newText == '+' ? 1 : 0);
  if (digits[0] == '0' && digits[1] != '\0')
    return false;
  return min_ <= value && value <= max_;
}

} // namespace mui
