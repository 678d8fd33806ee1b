// Linked as an ordinary static link keeps only the objects that something
// references, unlike the programs, which take the libraries whole. A library
// that reads its texts must bring its catalog along all the same, and so must
// the base, whose texts live in the translations library.
#include "loc/LocaleParameter.h"
#include "loc/Localize.h"
#include "plat/Configuration.h"
#include "plat/Exception.h"
#include "product/ProductInfo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

TEST(CatalogLink, TextsAreThereWithoutTheWholeArchives) {
  loc::Localize::instance().init({});
  EXPECT_THAT(product::aboutText().get(), testing::StartsWith("<div>Copyright \xC2\xA9 Ostrand."));
  EXPECT_THAT(loc::localeParameter.getDescription(),
              testing::StartsWith("Locale to use. Specify one of"))
      << "the translations library's own text";
  const char* arguments[] = {"-NoSuchParameter", nullptr};
  try {
    plat::Configuration::global().parseArgs(arguments, nullptr);
    ADD_FAILURE() << "an unknown parameter must raise";
  } catch (const plat::Exception& failure) {
    EXPECT_STREQ(failure.what(), "Bad argument '-NoSuchParameter'.") << "the base's text";
  }
}

} // namespace
