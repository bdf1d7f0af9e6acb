// TQELSystemDetails: what is known of the system, the machine and the user.
#pragma once

#include <string>

#include "qel/core/Qelcomponent.h"
#include "qel/core/Qelsystemfacts.h"

namespace qel {

/// Tells facts of the system, of the machine, its main monitor, and of the user with the user's
/// folders. Each is asked for when it is read, and empty or 0 where the system does not tell it.
class QEL_API TQELSystemDetails : public TQELComponent {
 public:
  explicit TQELSystemDetails(vcl::TComponent* owner);
  ~TQELSystemDetails() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// All of it, a line "name: value" each, in the order of the names.
  std::string AsText() const;

  /// The folder of programs.
  std::string ApplicationFolder() const { return QELInformation(iiProgramFiles); }
  /// Of the system: "x86", "x64", "ARM64".
  std::string Architecture() const { return QELInformation(iiArchitecture); }
  /// The computer's name.
  std::string ComputerName() const { return QELInformation(iiComputerName); }
  /// The user's, in the user's language.
  std::string Country() const { return QELInformation(iiCountry); }
  /// The user's desktop. No folder has a delimiter at its end.
  std::string DesktopFolder() const { return QELInformation(iiDesktopFolder); }
  /// The user's documents.
  std::string DocumentsFolder() const { return QELInformation(iiDocumentsFolder); }
  /// The user's own folder.
  std::string HomeFolder() const { return QELInformation(iiHomeFolder); }
  /// The machine's first address in a network; empty without one.
  std::string HostAddress() const { return QELInformation(iiHostAddress); }
  /// The user's, in that language.
  std::string Language() const { return QELInformation(iiLanguage); }
  /// Where programs keep what stays on this machine.
  std::string LocalFolder() const { return QELInformation(iiLocalFolder); }
  /// The user's: "en-US".
  std::string Locale() const { return QELInformation(iiLocale); }
  /// For which Windows is registered.
  std::string Organization() const { return QELInformation(iiOrganization); }
  /// In whose name Windows is registered.
  std::string Owner() const { return QELInformation(iiOwner); }
  /// As its maker calls it.
  std::string ProcessorName() const { return QELInformation(iiProcessorName); }
  /// Where programs keep what goes with the user from machine to machine.
  std::string SettingsFolder() const { return QELInformation(iiSettingsFolder); }
  /// The number of Windows's build.
  std::string SystemBuild() const { return QELInformation(iiSystemBuild); }
  /// The folder of Windows's libraries.
  std::string SystemFolder() const { return QELInformation(iiSystemFolder); }
  /// The name of Windows.
  std::string SystemName() const { return QELInformation(iiSystemName); }
  /// Of Windows: "10.0".
  std::string SystemVersion() const { return QELInformation(iiVersion); }
  /// Where files stand that nobody keeps.
  std::string TempFolder() const { return QELInformation(iiTempFolder); }
  /// Since the system was started: "2 days 03:04:05".
  std::string Uptime() const { return QELInformation(iiUptime); }
  /// Who is logged on.
  std::string UserName() const { return QELInformation(iiUserName); }
  /// The folder of Windows.
  std::string WindowsFolder() const { return QELInformation(iiSystemRoot); }
  /// Of the main monitor, in bits a pixel.
  int ColorDepth() const;
  /// In MB.
  int MemoryFree() const;
  /// How much of the memory is in use, in percent.
  int MemoryLoad() const;
  /// In MB.
  int MemorySize() const;
  /// How many monitors the desktop has.
  int MonitorCount() const;
  /// Dots per inch of the main monitor, as the program sees it.
  int PixelsPerInch() const;
  /// How many processors the system runs programs on.
  int ProcessorCount() const;
  /// Of the main monitor, in pixels.
  int ScreenHeight() const;
  /// Of the main monitor, in pixels.
  int ScreenWidth() const;
};

}  // namespace qel
