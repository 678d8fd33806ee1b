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

/// Gives unset versions their defaults: the display version "0.1", the
/// numeric one a copy of the display version.
void giveProductVersionDefaults();

/// The date and time of the build, such as "Oct 30 2026 11:24:50".
const char* productBuildDate() noexcept;

} // namespace product
