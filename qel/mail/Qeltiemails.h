// Internet mail, whole: messages with attachments and the components that exchange them with a
// server. What needs one of them alone includes its own header.
#pragma once

#include "qel/mail/Qeltiemails_message.h"
#include "qel/mail/Qeltiemails_pop.h"
#include "qel/mail/Qeltiemails_smtp.h"
#include "qel/mail/mailerror.h"
