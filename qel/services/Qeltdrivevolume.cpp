// TQELDriveVolume: its table, and its facts as they are shown.
#include "qel/services/Qeltdrivevolume.h"

#include "vcl/rtl/convert.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

const vcl::TClass& TQELDriveVolume::Class() {
  using T = TQELDriveVolume;
  using namespace vcl;
  static const TClass info =
      Describe<T, TQELComponent>("qel::TQELDriveVolume", "qel/services/Qeltdrivevolume.h",
                                 {
                                     ReadOnly<&T::AvailableSize>("AvailableSize"),
                                     ReadOnly<&T::CaseSensitive>("CaseSensitive"),
                                     ReadOnly<&T::ClusterSize>("ClusterSize"),
                                     ReadOnly<&T::Compressed>("Compressed"),
                                     Property<&T::Drive, &T::SetDrive>("Drive").Default(dC),
                                     ReadOnly<&T::FileSystem>("FileSystem"),
                                     ReadOnly<&T::FreeSize>("FreeSize"),
                                     ReadOnly<&T::Kind>("Kind"),
                                     ReadOnly<&T::MaxNameLength>("MaxNameLength"),
                                     ReadOnly<&T::ReadOnlyVolume>("ReadOnlyVolume"),
                                     ReadOnly<&T::Ready>("Ready"),
                                     ReadOnly<&T::SectorSize>("SectorSize"),
                                     ReadOnly<&T::SerialNumber>("SerialNumber"),
                                     ReadOnly<&T::SupportsCompression>("SupportsCompression"),
                                     ReadOnly<&T::SupportsEncryption>("SupportsEncryption"),
                                     ReadOnly<&T::SupportsQuotas>("SupportsQuotas"),
                                     ReadOnly<&T::SupportsUnicode>("SupportsUnicode"),
                                     ReadOnly<&T::TotalSize>("TotalSize"),
                                     ReadOnly<&T::UsedSize>("UsedSize"),
                                     ReadOnly<&T::VolumeName>("VolumeName"),
                                 });
  return info;
}

TQELDriveVolume::TQELDriveVolume(vcl::TComponent* owner) : TQELComponent(owner) {}

TQELDriveVolume::~TQELDriveVolume() { AnnounceEnd(); }

std::string TQELDriveVolume::Root() const {
  return std::string(1, static_cast<char>('A' + FDrive)) + ":\\";
}

const TQELVolumeFacts& TQELDriveVolume::Facts() const {
  if (!FFacts) FFacts = QELVolumeFacts(Root());
  return *FFacts;
}

void TQELDriveVolume::SetDrive(TQELVolumeDrive drive) {
  if (drive < dA || drive > dZ) return;
  FDrive = drive;
  Refresh();
}

std::string TQELDriveVolume::SerialNumber() const {
  if (!Ready()) return {};
  const std::uint32_t number = Facts().SerialNumber;
  return vcl::Concat(vcl::IntToHex(number >> 16, 4), "-", vcl::IntToHex(number & 0xFFFF, 4));
}

int TQELDriveVolume::AvailableSize() const { return QELMegabytes(AvailableBytes()); }
bool TQELDriveVolume::CaseSensitive() const { return Has(FILE_CASE_SENSITIVE_SEARCH); }
int TQELDriveVolume::ClusterSize() const { return Facts().ClusterSize; }
bool TQELDriveVolume::Compressed() const { return Has(FILE_VOLUME_IS_COMPRESSED); }
std::string TQELDriveVolume::FileSystem() const { return Facts().FileSystem; }
int TQELDriveVolume::FreeSize() const { return QELMegabytes(FreeBytes()); }
int TQELDriveVolume::MaxNameLength() const { return Facts().NameLength; }
bool TQELDriveVolume::ReadOnlyVolume() const { return Has(FILE_READ_ONLY_VOLUME); }
bool TQELDriveVolume::Ready() const { return Facts().Ready; }
int TQELDriveVolume::SectorSize() const { return Facts().SectorSize; }
bool TQELDriveVolume::SupportsCompression() const { return Has(FILE_FILE_COMPRESSION); }
bool TQELDriveVolume::SupportsEncryption() const { return Has(FILE_SUPPORTS_ENCRYPTION); }
bool TQELDriveVolume::SupportsQuotas() const { return Has(FILE_VOLUME_QUOTAS); }
bool TQELDriveVolume::SupportsUnicode() const { return Has(FILE_UNICODE_ON_DISK); }
int TQELDriveVolume::TotalSize() const { return QELMegabytes(TotalBytes()); }
int TQELDriveVolume::UsedSize() const { return QELMegabytes(TotalBytes() - FreeBytes()); }
std::string TQELDriveVolume::VolumeName() const { return Facts().Name; }

}  // namespace qel
