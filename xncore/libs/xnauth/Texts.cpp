#include "xnauth/Texts.h"

#include <cstring>

namespace xnauth {

namespace {

struct KeyText {
  const char* key;
  const char* text;
};

// English, the language of a build without catalogs.
constexpr KeyText english[] = {
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
};

} // namespace

const char* lookupText(const char* key) noexcept {
  for (const KeyText& entry : english) {
    if (std::strcmp(entry.key, key) == 0)
      return entry.text;
  }
  return key;
}

} // namespace xnauth
