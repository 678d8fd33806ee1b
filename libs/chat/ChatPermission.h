// chat::ChatPermission: the permission letter 'h', to chat with other users.
#pragma once

#include "xnauth/FeaturePermission.h"

namespace chat {

class ChatPermission : public xnauth::FeaturePermission {
public:
  ChatPermission();
};

} // namespace chat
