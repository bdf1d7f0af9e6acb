// Small files that several programs read and change: read at once, changed by one at a time, and
// replaced whole.
#pragma once

#include <cstdint>
#include <string>

namespace vcl::os {

enum class TReading { Done, Missing, Refused };

/// The full name of a settings file. A bare name is one in the system's folder for them, where
/// there is such a folder; any other is relative to the current one.
std::string SettingsFileName(const std::string& name);

/// Reads the whole file. When it is refused, LastSystemError says why.
TReading ReadWholeFile(const std::string& name, std::string& contents);

/// While it lives, no other program or thread has one for the same file.
class TFileTurn {
 public:
  explicit TFileTurn(const std::string& fileName);
  ~TFileTurn();
  TFileTurn(const TFileTurn&) = delete;
  TFileTurn& operator=(const TFileTurn&) = delete;
  /// False when others would not let go for ten seconds, or the system has refused.
  bool Held() const { return FHeld; }

 private:
  std::intptr_t FHandle;
  bool FHeld = false;
};

/// When contents are on the disk, so that they outlive a power cut: whenever the system comes to
/// it, or before the function returns, which takes far longer.
enum class TWritten { Later, OnDisk };

/// Replaces the contents: whoever reads the file, and whenever the program ends, it holds either
/// the former contents or the new ones. They are written to a file beside it, "NAME.~new", which
/// then takes its place. Written Later, a file that others have open without letting it be replaced
/// is written over instead; who reads it in that moment may see some of both. Call it in one's
/// turn. False when the system refuses; LastSystemError says why, and the file is as before.
bool ReplaceWholeFile(const std::string& name, const std::string& contents, TWritten when);

}  // namespace vcl::os
