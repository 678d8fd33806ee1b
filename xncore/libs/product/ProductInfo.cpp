#include "product/ProductInfo.h"

#include "loc/LocaleParameter.h"
#include "loc/Localize.h"
#include "os/AppInfo.h"
#include "os/SystemInfo.h"
#include "plat/DString.h"
#include "plat/LogDestFile.h"
#include "plat/MarkupEscape.h"
#include "product/ProductVersion.h"
#include "product/TextKeys.h"

#include <cstring>
#include <mutex>

namespace product {

namespace {

// The processor word of this build.
constexpr const char* processorWord = "x64";

// Plain-text spellings of the marks that a log file or a terminal may not show.
constexpr const char* spelledMarks[][2] = {
    {"\xC2\xAE", "(R)"}, {"\xC2\xA9", "(C)"}, {"\xE2\x84\xA2", "(TM)"}};

void collapseDoubleBlanks(plat::DString& text) {
  while (std::strstr(text.get(), "  "))
    text.replaceAll("  ", " ");
}

class VersionInfoUpdater : public plat::ParameterChangedCallback {
public:
  VersionInfoUpdater() {
    loc::localeParameter.addCallback(this);
    paramChanged(&loc::localeParameter, 0);
  }

  void paramChanged(plat::ConfigParameter*, int) override {
    plat::DString version;
    version.appendFormat("%s %s %s (%s)", os::getDisplayName(true),
                         productVersion() ? productVersion() : "0.1", processorWord,
                         productBuildDate());
    // The build date pads a one-digit day with a blank, and a display name
    // may end in one.
    collapseDoubleBlanks(version);

    // The documentation's version is taken once, from the first build
    // version there is, and kept.
    plat::String address;
    {
      std::lock_guard<std::mutex> hold(lock_);
      if (docVersion_.isNull() && productBuildVersion()) {
        const char* build = productBuildVersion();
        docVersion_ = plat::strDup(build, static_cast<int>(std::strcspn(build, ".")));
      }
      address = addressOf(docVersion_.get());
    }
    plat::DString about;
    for (const char* key :
         {textkey::product_copyright, textkey::product_trademarks, textkey::product_patents}) {
      about.append("<div>");
      about.append(plat::escapeMarkup(XN_TEXT(key)).get());
      about.append("</div>");
    }
    // At the normal font size the pointer needs no span of its own. The
    // address is the text's one argument, shown and linked.
    about.append(XN_FORMAT(textkey::product_info_marked_up_fmt, address.get()).get());

    plat::DString system("OS: ");
    system.appendFormat("%s, %s", os::operatingSystemName().get(),
                        os::processArchitectureWord().get());

    plat::DString full;
    full.appendFormat("%s\n%s\n%s\n%s\n%s\n%s\n%s\n%s", version.get(),
                      XN_TEXT(textkey::product_copyright), XN_TEXT(textkey::product_trademarks),
                      XN_TEXT(textkey::product_patents), XN_TEXT(textkey::product_further_info),
                      XN_TEXT(textkey::product_ack_intro), address.get(), system.get());
    for (const auto& [mark, spelled] : spelledMarks)
      full.replaceAll(mark, spelled);
    full.wordWrap(79, 0);

    plat::setLogBanner(full.get());
    std::lock_guard<std::mutex> hold(lock_);
    versionLine_ = std::move(version);
    aboutText_ = std::move(about);
    osLine_ = std::move(system);
    fullInfo_ = std::move(full);
  }

  plat::String read(const plat::DString VersionInfoUpdater::*text) const {
    std::lock_guard<std::mutex> hold(lock_);
    return plat::String((this->*text).get());
  }

  plat::String address() const {
    std::lock_guard<std::mutex> hold(lock_);
    return addressOf(docVersion_.get());
  }

  plat::DString versionLine_;
  plat::DString aboutText_;
  plat::DString osLine_;
  plat::DString fullInfo_;

private:
  static plat::String addressOf(const char* docVersion) {
    return plat::strFormat("%s/docs/%s/foss.html", makerWebAddress, docVersion ? docVersion : "");
  }

  /// The version part of the documentation's address.
  plat::String docVersion_;
  mutable std::mutex lock_;
};

// Lives until the process ends: the log may want the banner to the last.
VersionInfoUpdater*& updater() {
  static VersionInfoUpdater* instance = nullptr;
  return instance;
}

plat::String readText(const plat::DString VersionInfoUpdater::*text) {
  startProductTexts();
  return updater()->read(text);
}

} // namespace

void startProductTexts() {
  if (!updater())
    updater() = new VersionInfoUpdater();
}

plat::String versionLine() {
  return readText(&VersionInfoUpdater::versionLine_);
}

plat::String aboutText() {
  return readText(&VersionInfoUpdater::aboutText_);
}

plat::String osLine() {
  return readText(&VersionInfoUpdater::osLine_);
}

plat::String fullInfo() {
  return readText(&VersionInfoUpdater::fullInfo_);
}

plat::String documentationAddress() {
  startProductTexts();
  return updater()->address();
}

} // namespace product
