// Pictures of the program's forms, for a run that nobody sees.
#pragma once

#include <string>
#include <vector>

namespace notes {

class TNotesForm;

/// Shows the forms and saves a picture of each in the folder; returns the files' names. Raises
/// EInOutError, EFCreateError and EWriteError.
std::vector<std::string> SaveScreenshots(TNotesForm& form, const std::string& folder);

}  // namespace notes
