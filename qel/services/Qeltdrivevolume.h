// TQELDriveVolume: a drive and the volume in it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "qel/core/Qelsystemfacts.h"

namespace qel {

/// The drives that have a letter.
enum TQELVolumeDrive {
  dA,
  dB,
  dC,
  dD,
  dE,
  dF,
  dG,
  dH,
  dI,
  dJ,
  dK,
  dL,
  dM,
  dN,
  dO,
  dP,
  dQ,
  dR,
  dS,
  dT,
  dU,
  dV,
  dW,
  dX,
  dY,
  dZ
};

/// Tells facts of a drive and of the volume in it. The system is asked when the first of them is
/// read, and again after Refresh or another Drive; it shows no box for a drive that is not ready.
class QEL_API TQELDriveVolume : public TQELComponent {
 public:
  explicit TQELDriveVolume(vcl::TComponent* owner);
  ~TQELDriveVolume() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Has the system asked anew.
  void Refresh() { FFacts.reset(); }
  /// "C:\\".
  std::string Root() const;
  /// In bytes, of any size.
  std::uint64_t TotalBytes() const { return Facts().Drive.Size; }
  std::uint64_t FreeBytes() const { return Facts().Drive.Free; }
  /// As far as the user may take it.
  std::uint64_t AvailableBytes() const { return Facts().Drive.Available; }

  TQELVolumeDrive Drive() const { return FDrive; }
  /// The drive of which all the others tell. A number that is no drive is not taken.
  void SetDrive(TQELVolumeDrive drive);
  /// In MB, as far as the user may take it.
  int AvailableSize() const;
  /// Names of files that differ only in case are names of two files.
  bool CaseSensitive() const;
  /// In bytes.
  int ClusterSize() const;
  /// The volume as a whole is compressed.
  bool Compressed() const;
  /// "NTFS".
  std::string FileSystem() const;
  /// In MB.
  int FreeSize() const;
  /// What the drive is.
  TQELDriveKind Kind() const { return Facts().Kind; }
  /// How many characters a file's name has at most.
  int MaxNameLength() const;
  /// Nothing can be written there.
  bool ReadOnlyVolume() const;
  /// There is a volume in the drive that can be read.
  bool Ready() const;
  /// In bytes.
  int SectorSize() const;
  /// "1A2B-3C4D".
  std::string SerialNumber() const;
  /// Single files can be compressed.
  bool SupportsCompression() const;
  /// Files can be encrypted.
  bool SupportsEncryption() const;
  /// Users can be given limits.
  bool SupportsQuotas() const;
  /// Names of files may have letters of any language.
  bool SupportsUnicode() const;
  /// In MB.
  int TotalSize() const;
  /// In MB.
  int UsedSize() const;
  /// What the volume is called.
  std::string VolumeName() const;

 private:
  const TQELVolumeFacts& Facts() const;
  bool Has(std::uint32_t flag) const { return (Facts().Flags & flag) != 0; }

  TQELVolumeDrive FDrive = dC;
  mutable std::optional<TQELVolumeFacts> FFacts;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELVolumeDrive>{
    "TQELVolumeDrive",
    "dA dB dC dD dE dF dG dH dI dJ dK dL dM dN dO dP dQ dR dS dT dU dV dW dX dY dZ"};
