// A mail that the program sends to itself, for a run that nobody sees.
#pragma once

#include <string>
#include <vector>

namespace mailer {

class TMailerForm;

/// Shows the program at work and saves pictures of its forms in the folder; returns the files'
/// names. With the ports QEL_SMTP_PORT and QEL_POP_PORT in the environment, where servers of this
/// machine listen that know the user bob of example.test with the password secret, a mail with an
/// attachment goes out and is fetched; else the main window stays empty, which is said on the
/// standard error. Raises an exception when the mail does not come back as it was.
std::vector<std::string> SaveScreenshots(TMailerForm& form, const std::string& folder);

}  // namespace mailer
