// TQELResourceInfo: how much the program and the machine have left; TQELResourceLimits, how much it
// shall be.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "qel/core/Qelcomponent.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/sets.h"
#include "vcl/stdctrls/timer.h"

namespace qel {

/// What may run short.
enum TQELResource {
  rsMemory,    ///< What is free of it, in MB.
  rsPageFile,  ///< What is free of memory and page file together, in MB.
  rsDrive,     ///< What the user may still take of the drive, in MB.
  rsGDIHandles,
  rsUserHandles,
  rsKernelHandles
};

/// When resources are low: below these sizes, above these numbers of handles. 0 is no limit, and
/// numbers below are not taken.
class QEL_API TQELResourceLimits : public vcl::TPersistent {
 public:
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void Assign(const vcl::TPersistent* source) override;

  int Memory() const { return FLimits[rsMemory]; }
  /// The least free memory, in MB.
  void SetMemory(int size) { SetLimit(rsMemory, size); }
  int PageFile() const { return FLimits[rsPageFile]; }
  /// The least that is free of memory and page file together, in MB.
  void SetPageFile(int size) { SetLimit(rsPageFile, size); }
  int Drive() const { return FLimits[rsDrive]; }
  /// The least space on the drive, in MB.
  void SetDrive(int size) { SetLimit(rsDrive, size); }
  int GDIHandles() const { return FLimits[rsGDIHandles]; }
  /// The greatest number of the program's pens, bitmaps and the like.
  void SetGDIHandles(int count) { SetLimit(rsGDIHandles, count); }
  int UserHandles() const { return FLimits[rsUserHandles]; }
  /// The greatest number of the program's windows, menus and the like.
  void SetUserHandles(int count) { SetLimit(rsUserHandles, count); }
  int KernelHandles() const { return FLimits[rsKernelHandles]; }
  /// The greatest number of the program's files, threads and the like.
  void SetKernelHandles(int count) { SetLimit(rsKernelHandles, count); }

  /// True when the value is on the wrong side of the resource's limit.
  bool Passed(TQELResource resource, int value) const;

 private:
  void SetLimit(TQELResource resource, int limit) {
    if (limit >= 0) FLimits[resource] = limit;
  }

  int FLimits[rsKernelHandles + 1] = {};
};

/// Sender, what is low, how much there is of it.
using TQELResourceEvent = vcl::TEvent<vcl::TObject*, TQELResource, int>;

/// Tells how much memory, space on a drive and handles there are, each asked for when it is read,
/// and says when one of them gets low. Sizes are in MB. The designer is not told.
class QEL_API TQELResourceInfo : public TQELComponent {
 public:
  explicit TQELResourceInfo(vcl::TComponent* owner);
  ~TQELResourceInfo() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Looks now, as is done at each Interval: fires OnLow for each resource that has got low since
  /// the last look. One that was low already is told again when it has not been meanwhile.
  void Check();
  /// How much there is of the resource, as its property tells.
  int Value(TQELResource resource) const;

  const std::string& Drive() const { return FDrive; }
  /// A folder, of whose drive the space is told; the current one where it is empty.
  void SetDrive(const std::string& folder) { FDrive = folder; }
  std::uint32_t Interval() const { return FTimer->Interval(); }
  /// How often it is looked, in milliseconds; 0 for never.
  void SetInterval(std::uint32_t milliseconds);
  TQELResourceLimits* Limits() const { return FLimits.get(); }
  /// When OnLow is fired.
  void SetLimits(const TQELResourceLimits* limits) { FLimits->Assign(limits); }
  /// What the user may still take of the drive; 0 where the system can't tell.
  int DriveFree() const;
  /// How much the drive holds.
  int DriveSize() const;
  /// The program's pens, bitmaps and the like.
  int GDIHandles() const;
  /// The program's files, threads and the like.
  int KernelHandles() const;
  /// Memory that is free.
  int MemoryFree() const;
  /// How much of the memory is in use, in percent.
  int MemoryLoad() const;
  /// The machine's memory.
  int MemorySize() const;
  /// What is free of memory and page file together.
  int PageFileFree() const;
  /// Memory and page file together.
  int PageFileSize() const;
  /// The program's windows, menus and the like.
  int UserHandles() const;

  /// A resource has got low.
  TQELResourceEvent OnLow;

 private:
  std::string FDrive;
  std::unique_ptr<TQELResourceLimits> FLimits;
  std::unique_ptr<vcl::TTimer> FTimer;
  vcl::TSet<TQELResource> FLow;  // As was seen at the last look.
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELResource>{
    "TQELResource", "rsMemory rsPageFile rsDrive rsGDIHandles rsUserHandles rsKernelHandles"};
template <>
inline constexpr vcl::TEventText vcl::EventText<qel::TQELResourceEvent>{
    "TQELResourceEvent", "vcl::TObject* sender, qel::TQELResource resource, int value"};
