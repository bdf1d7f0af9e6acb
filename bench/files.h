// Jobs on files, for bench/files-against-tools, which measures other programs beside them.
#pragma once

#include <string>

namespace bench {

/// Does the job once with what is in the folder and returns how many milliseconds it took:
/// "collect" names all its files, "replace" changes the texts of its files, "first" shows the first
/// page of its file "large", "search" finds the last line there, "view" lists it. Raises
/// std::runtime_error for another job, and when the job was not done.
double DoFilesJob(const std::string& job, const std::string& folder);

}  // namespace bench
