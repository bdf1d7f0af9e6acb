// A program that copies and moves files until it is ended from outside; it is this test's own,
// started anew.
#pragma once

#include <string>

/// Moves what is in the two folders to and fro, as between two drives, for ever. Says by a file
/// "begun" beside them that it has begun.
[[noreturn]] void MoveForEver(const std::string& here, const std::string& there);
/// Copies the first folder's files to the second one, for ever, each time with other contents:
/// files of 300,000 equal letters.
[[noreturn]] void CopyForEver(const std::string& from, const std::string& to);
