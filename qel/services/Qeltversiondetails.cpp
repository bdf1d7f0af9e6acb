// TQELVersionDetails: its table, and the file's flags.
#include "qel/services/Qeltversiondetails.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

const vcl::TClass& TQELVersionDetails::Class() {
  using T = TQELVersionDetails;
  using namespace vcl;
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELVersionDetails", "qel/services/Qeltversiondetails.h",
      {
          ReadOnly<&T::Comments>("Comments"),
          ReadOnly<&T::CompanyName>("CompanyName"),
          ReadOnly<&T::DebugBuild>("DebugBuild"),
          ReadOnly<&T::FileBuild>("FileBuild"),
          ReadOnly<&T::FileDescription>("FileDescription"),
          ReadOnly<&T::FileMajor>("FileMajor"),
          ReadOnly<&T::FileMinor>("FileMinor"),
          ReadOnly<&T::FileRelease>("FileRelease"),
          ReadOnly<&T::FileVersion>("FileVersion"),
          Property<&T::Filename, &T::SetFilename>("Filename").Default(""),
          ReadOnly<&T::HasVersion>("HasVersion"),
          ReadOnly<&T::InternalName>("InternalName"),
          ReadOnly<&T::Language>("Language"),
          ReadOnly<&T::LegalCopyright>("LegalCopyright"),
          ReadOnly<&T::LegalTrademarks>("LegalTrademarks"),
          ReadOnly<&T::OriginalFilename>("OriginalFilename"),
          ReadOnly<&T::PatchedBuild>("PatchedBuild"),
          ReadOnly<&T::PreRelease>("PreRelease"),
          ReadOnly<&T::PrivateBuild>("PrivateBuild"),
          ReadOnly<&T::ProductBuild>("ProductBuild"),
          ReadOnly<&T::ProductMajor>("ProductMajor"),
          ReadOnly<&T::ProductMinor>("ProductMinor"),
          ReadOnly<&T::ProductName>("ProductName"),
          ReadOnly<&T::ProductRelease>("ProductRelease"),
          ReadOnly<&T::ProductVersion>("ProductVersion"),
          ReadOnly<&T::SpecialBuild>("SpecialBuild"),
      });
  return info;
}

TQELVersionDetails::TQELVersionDetails(vcl::TComponent* owner) : TQELComponent(owner) {}

TQELVersionDetails::~TQELVersionDetails() { AnnounceEnd(); }

bool TQELVersionDetails::DebugBuild() const { return (Numbers().Flags & VS_FF_DEBUG) != 0; }
bool TQELVersionDetails::PatchedBuild() const { return (Numbers().Flags & VS_FF_PATCHED) != 0; }
bool TQELVersionDetails::PreRelease() const { return (Numbers().Flags & VS_FF_PRERELEASE) != 0; }

}  // namespace qel
