// Every library's catalog is linked into the program and answers in each of
// the six languages that parameter "Locale" offers.
#include "oxnpermissionscreator/TextKeys.h"

#include "chat/TextKeys.h"
#include "cloudAuth/TextKeys.h"
#include "ftCommon/TextKeys.h"
#include "io/TextKeys.h"
#include "loc/LocaleParameter.h"
#include "loc/Localize.h"
#include "loc/TextKeys.h"
#include "localInput/TextKeys.h"
#include "mui/TextKeys.h"
#include "plat/TextKeys.h"
#include "print/TextKeys.h"
#include "product/TextKeys.h"
#include "screenrecorder/TextKeys.h"
#include "smisc/TextKeys.h"
#include "sui/TextKeys.h"
#include "sysauth/TextKeys.h"
#include "ui/TextKeys.h"
#include "xnauth/TextKeys.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

TEST(Catalogs, EachLibraryAnswersInEveryLanguage) {
  // One key of each catalog whose text differs in every language.
  const char* const keys[] = {
      textkey::plat_configuration_global_params,
      textkey::loc_param_locale,
      textkey::io_error_endpoint_general,
      textkey::ui_button_cancel,
      textkey::mui_aboutdlg_title_fmt,
      textkey::sui_optperm_allow,
      textkey::smisc_permissionssystemauth_dialog_title,
      textkey::sysauth_securityprincipal_all_users,
      textkey::xnauth_permissions_view_desc,
      textkey::cloudauth_cloudsso_dialog_title,
      textkey::chat_permission_desc,
      textkey::ft_permission_desc,
      textkey::localInput_permission_desc,
      textkey::print_permission_desc,
      textkey::screenrecorder_permission_desc,
      textkey::product_further_info,
      textkey::scheme_label,
  };
  loc::Localize::instance().init({});
  std::map<std::string, std::string> english;
  for (const char* locale : {"en_US", "de_DE", "es_ES", "fr_FR", "pt_BR", "zh_CN"}) {
    loc::localeParameter.setFromString(locale, plat::priorityPreference);
    for (const char* key : keys) {
      const char* text = loc::getOptional(key, true);
      ASSERT_NE(text, nullptr) << locale << " " << key;
      if (english.emplace(key, text).second)
        continue;
      EXPECT_NE(english[key], text) << locale << " " << key;
    }
  }
  loc::localeParameter.reset(true);
}

} // namespace
