#include "chat/ChatPermission.h"

namespace chat {

ChatPermission::ChatPermission()
    : FeaturePermission('h', "chat_permission_desc", "fd", "EnableChat") {}

} // namespace chat
