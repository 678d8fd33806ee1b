// The palette of a colour-map pixel format: from index to colour and back.
// Buffers and formats hold colour maps without owning them.
#pragma once

#include "rfb/Colour.h"

#include <cstdint>

namespace rfb {

class ColourMap {
public:
  virtual ~ColourMap() = default;
  /// The colour of `index`, alpha 255.
  virtual Colour lookup(std::uint32_t index) const = 0;
  /// The number of entries.
  virtual int size() const = 0;
  /// The index whose colour comes nearest to `colour`.
  virtual std::uint32_t nearest(const Colour& colour) const = 0;
};

} // namespace rfb
