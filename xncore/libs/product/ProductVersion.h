// The product's version texts, process-wide: the display form shown to people
// and the numeric form for machines. The entry function sets them before
// anything reads them.
#pragma once

namespace product {

/// Stores both versions; each is replaced only when it differs from what is stored.
void setProductVersion(const char* displayVersion, const char* numericVersion);

/// The display version, such as "7.19.0 (r13)", or null before it is set.
const char* productVersion() noexcept;
/// The numeric version, such as "7.19.0.13", or null before it is set.
const char* productBuildVersion() noexcept;

} // namespace product
