#include "plat/EnglishText.h"

#include "plat/DString.h"

#include <cstring>

namespace plat {

namespace {

struct KeyText {
  const char* key;
  const char* text;
};

constexpr KeyText english[] = {
    {"plat_configuration_global_params", "Global parameters"},
    {"plat_bad_argument", "Bad argument '%S'."},
    {"plat_run_with_help", "Run with -help for usage."},
    {"plat_configuration_param_usage",
     "Parameters can be turned on with -<param> or off with -<param>=0\n"
     "Values can be specified as -<param> <value>\n"
     "Other valid forms are <param>=<value> -<param>=<value> --<param>=<value>\n"
     "Names are case-insensitive.  Valid parameters are listed below."},
    {"plat_configuration_help_default", "default"},
    {"plat_configuration_log_names_title", "Log names:"},
    {"plat_configuration_log_dests_title", "Log destinations:"},
    {"plat_press_return_to_continue", "Press Enter/Return key to continue"},
    {"plat_param_log", "Record events in the format <log>:<target>:<level>[,...]."},
    {"plat_param_logdir", "Directory in which to store log output directed to file."},
    {"plat_param_logfile", "File in which to store log output directed to file."},
    {"plat_param_log_keep_days", "Keep log files for X days."},
    {"loc_param_locale",
     "Locale to use. Specify one of en_US, de_DE, es_ES, fr_FR, pt_BR, or zh_CN, or leave empty "
     "to select the user or system locale as appropriate."},
    {"smisc_permissionscontrol_param_permissions",
     "A comma-separated list of permissions for connected users. Each entry in the list is of "
     "the form USER_OR_GROUP:PERMISSIONS."},
    // The permission alphabet and the names of the presets.
    {"xnauth_permissions_view_desc", "View the desktop"},
    {"xnauth_permissions_keyevents_desc", "Control desktop using keyboard"},
    {"xnauth_permissions_ptrevents_desc", "Control desktop using mouse"},
    {"xnauth_permissions_cuttext_desc", "Copy and paste text in either direction"},
    {"xnauth_permissions_noquery_desc", "Bypass connection accept/reject prompt"},
    {"xnauth_permissions_listen_desc", "Hear audio from the desktop"},
    {"smisc_privacymode_screenblanker_permission_desc", "Blank the screen while connected"},
    {"localInput_permission_desc", "Disable or enable local keyboard and mouse while connected"},
    {"chat_permission_desc", "Chat with other users"},
    {"ft_permission_desc", "Transfer files in either direction"},
    {"print_permission_desc", "Print to a local printer"},
    {"screenrecorder_permission_desc", "Record the session"},
    {"xnauth_permissions_desc_noaccess", "No access"},
    {"xnauth_permissions_desc_full", "Administrative"},
    {"xnauth_permissions_desc_defaults", "Standard"},
    {"xnauth_permissions_desc_viewonly", "View-only"},
    {"xnauth_permissions_desc_inputonly", "Input-only"},
    {"xnauth_permissions_desc_custom", "Custom"},
    {"sysauth_securityprincipal_all_users", "All users"},
};

} // namespace

const char* englishText(const char* key) noexcept {
  if (!key)
    return nullptr;
  for (const KeyText& entry : english) {
    if (std::strcmp(entry.key, key) == 0)
      return entry.text;
  }
  return key;
}

String englishFormat(const char* key, const char* argument) {
  const char* text = englishText(key);
  const char* placeholder = std::strstr(text, "%S");
  DString out;
  out.ensure(1);
  if (!placeholder) {
    out.append(text);
    return out.takeString();
  }
  out.append(text, static_cast<int>(placeholder - text));
  out.append(argument);
  out.append(placeholder + 2);
  return out.takeString();
}

} // namespace plat
