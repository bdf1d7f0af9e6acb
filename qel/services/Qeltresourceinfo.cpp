// TQELResourceInfo: its table, what it tells, and looking for what is low.
#include "qel/services/Qeltresourceinfo.h"

#include <algorithm>
#include <iterator>

#include "qel/core/Qelsystemfacts.h"
#include "vcl/rtl/properties.h"

namespace qel {

namespace {

TQELMemoryFacts Memory() { return QELMemoryFacts().value_or(TQELMemoryFacts()); }

}  // namespace

const vcl::TClass& TQELResourceLimits::Class() {
  using T = TQELResourceLimits;
  using namespace vcl;
  static const TClass info = Describe<T, TPersistent>(
      "qel::TQELResourceLimits", "qel/services/Qeltresourceinfo.h",
      {
          Property<&T::Drive, &T::SetDrive>("Drive").Default(0),
          Property<&T::GDIHandles, &T::SetGDIHandles>("GDIHandles").Default(0),
          Property<&T::KernelHandles, &T::SetKernelHandles>("KernelHandles").Default(0),
          Property<&T::Memory, &T::SetMemory>("Memory").Default(0),
          Property<&T::PageFile, &T::SetPageFile>("PageFile").Default(0),
          Property<&T::UserHandles, &T::SetUserHandles>("UserHandles").Default(0),
      });
  return info;
}

void TQELResourceLimits::Assign(const vcl::TPersistent* source) {
  const auto* limits = dynamic_cast<const TQELResourceLimits*>(source);
  if (!limits) return TPersistent::Assign(source);
  std::ranges::copy(limits->FLimits, FLimits);
}

bool TQELResourceLimits::Passed(TQELResource resource, int value) const {
  const int limit = FLimits[resource];
  if (limit == 0) return false;
  return resource < rsGDIHandles ? value < limit : value > limit;
}

const vcl::TClass& TQELResourceInfo::Class() {
  using T = TQELResourceInfo;
  using namespace vcl;
  static const TClass info =
      Describe<T, TQELComponent>("qel::TQELResourceInfo", "qel/services/Qeltresourceinfo.h",
                                 {
                                     Property<&T::Drive, &T::SetDrive>("Drive").Default(""),
                                     ReadOnly<&T::DriveFree>("DriveFree"),
                                     ReadOnly<&T::DriveSize>("DriveSize"),
                                     ReadOnly<&T::GDIHandles>("GDIHandles"),
                                     Property<&T::Interval, &T::SetInterval>("Interval").Default(0),
                                     ReadOnly<&T::KernelHandles>("KernelHandles"),
                                     Property<&T::Limits, &T::SetLimits>("Limits"),
                                     ReadOnly<&T::MemoryFree>("MemoryFree"),
                                     ReadOnly<&T::MemoryLoad>("MemoryLoad"),
                                     ReadOnly<&T::MemorySize>("MemorySize"),
                                     Event<&T::OnLow>("OnLow"),
                                     ReadOnly<&T::PageFileFree>("PageFileFree"),
                                     ReadOnly<&T::PageFileSize>("PageFileSize"),
                                     ReadOnly<&T::UserHandles>("UserHandles"),
                                 });
  return info;
}

TQELResourceInfo::TQELResourceInfo(vcl::TComponent* owner)
    : TQELComponent(owner),
      FLimits(std::make_unique<TQELResourceLimits>()),
      FTimer(std::make_unique<vcl::TTimer>(nullptr)) {
  FTimer->SetInterval(0);
  FTimer->OnTimer = [this](vcl::TObject*) { Check(); };
}

TQELResourceInfo::~TQELResourceInfo() { AnnounceEnd(); }

void TQELResourceInfo::SetInterval(std::uint32_t milliseconds) {
  FTimer->SetEnabled(!Designing());
  FTimer->SetInterval(milliseconds);
}

void TQELResourceInfo::Check() {
  const vcl::TWatch watch(this);
  for (int i = rsMemory; i <= rsKernelHandles; ++i) {
    const auto resource = static_cast<TQELResource>(i);
    const int value = Value(resource);
    const bool was = FLow.Has(resource);
    if (!FLimits->Passed(resource, value)) {
      FLow.Exclude(resource);
      continue;
    }
    FLow.Include(resource);
    if (!was) OnLow(this, resource, value);
    if (watch.Gone()) return;
  }
}

int TQELResourceInfo::Value(TQELResource resource) const {
  switch (resource) {
    case rsMemory: return MemoryFree();
    case rsPageFile: return PageFileFree();
    case rsDrive: return DriveFree();
    case rsGDIHandles: return GDIHandles();
    case rsUserHandles: return UserHandles();
    case rsKernelHandles: return KernelHandles();
  }
  return 0;
}

int TQELResourceInfo::DriveFree() const {
  return QELMegabytes(QELDriveFacts(FDrive).value_or(TQELDriveFacts()).Available);
}
int TQELResourceInfo::DriveSize() const {
  return QELMegabytes(QELDriveFacts(FDrive).value_or(TQELDriveFacts()).Size);
}
int TQELResourceInfo::GDIHandles() const { return QELHandleFacts().GDI; }
int TQELResourceInfo::KernelHandles() const { return QELHandleFacts().Kernel; }
int TQELResourceInfo::MemoryFree() const { return QELMegabytes(Memory().Free); }
int TQELResourceInfo::MemoryLoad() const { return Memory().Load; }
int TQELResourceInfo::MemorySize() const { return QELMegabytes(Memory().Size); }
int TQELResourceInfo::PageFileFree() const { return QELMegabytes(Memory().PageFree); }
int TQELResourceInfo::PageFileSize() const { return QELMegabytes(Memory().PageSize); }
int TQELResourceInfo::UserHandles() const { return QELHandleFacts().User; }

}  // namespace qel
