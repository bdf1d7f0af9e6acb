// Internet mail, whole: messages with attachments and the components that exchange them with a
// server. What needs one of them alone includes its own header.
#pragma once

#include "mail/Qeltiemails_message.h"
#include "mail/Qeltiemails_pop.h"
#include "mail/Qeltiemails_smtp.h"
