#include "chat/ChatPermission.h"

#include "chat/TextKeys.h"

namespace chat {

ChatPermission::ChatPermission()
    : FeaturePermission('h', textkey::chat_permission_desc, "fd", "EnableChat") {}

} // namespace chat
