// TQELSystemDetails: its table, and the numbers.
#include "qel/services/Qeltsystemdetails.h"

#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/valuetext.h"
#include "vcl/rtl/win32.h"

namespace qel {

namespace {

/// Of the main monitor; GetDeviceCaps's number.
int ScreenCapability(int which) {
  const HDC context = ::GetDC(nullptr);
  const int value = ::GetDeviceCaps(context, which);
  ::ReleaseDC(nullptr, context);
  return value;
}

TQELMemoryFacts Memory() { return QELMemoryFacts().value_or(TQELMemoryFacts()); }

}  // namespace

const vcl::TClass& TQELSystemDetails::Class() {
  using T = TQELSystemDetails;
  using namespace vcl;
  static const TClass info =
      Describe<T, TQELComponent>("qel::TQELSystemDetails", "qel/services/Qeltsystemdetails.h",
                                 {
                                     ReadOnly<&T::ApplicationFolder>("ApplicationFolder"),
                                     ReadOnly<&T::Architecture>("Architecture"),
                                     ReadOnly<&T::ColorDepth>("ColorDepth"),
                                     ReadOnly<&T::ComputerName>("ComputerName"),
                                     ReadOnly<&T::Country>("Country"),
                                     ReadOnly<&T::DesktopFolder>("DesktopFolder"),
                                     ReadOnly<&T::DocumentsFolder>("DocumentsFolder"),
                                     ReadOnly<&T::HomeFolder>("HomeFolder"),
                                     ReadOnly<&T::HostAddress>("HostAddress"),
                                     ReadOnly<&T::Language>("Language"),
                                     ReadOnly<&T::LocalFolder>("LocalFolder"),
                                     ReadOnly<&T::Locale>("Locale"),
                                     ReadOnly<&T::MemoryFree>("MemoryFree"),
                                     ReadOnly<&T::MemoryLoad>("MemoryLoad"),
                                     ReadOnly<&T::MemorySize>("MemorySize"),
                                     ReadOnly<&T::MonitorCount>("MonitorCount"),
                                     ReadOnly<&T::Organization>("Organization"),
                                     ReadOnly<&T::Owner>("Owner"),
                                     ReadOnly<&T::PixelsPerInch>("PixelsPerInch"),
                                     ReadOnly<&T::ProcessorCount>("ProcessorCount"),
                                     ReadOnly<&T::ProcessorName>("ProcessorName"),
                                     ReadOnly<&T::ScreenHeight>("ScreenHeight"),
                                     ReadOnly<&T::ScreenWidth>("ScreenWidth"),
                                     ReadOnly<&T::SettingsFolder>("SettingsFolder"),
                                     ReadOnly<&T::SystemBuild>("SystemBuild"),
                                     ReadOnly<&T::SystemFolder>("SystemFolder"),
                                     ReadOnly<&T::SystemName>("SystemName"),
                                     ReadOnly<&T::SystemVersion>("SystemVersion"),
                                     ReadOnly<&T::TempFolder>("TempFolder"),
                                     ReadOnly<&T::Uptime>("Uptime"),
                                     ReadOnly<&T::UserName>("UserName"),
                                     ReadOnly<&T::WindowsFolder>("WindowsFolder"),
                                 });
  return info;
}

TQELSystemDetails::TQELSystemDetails(vcl::TComponent* owner) : TQELComponent(owner) {}

TQELSystemDetails::~TQELSystemDetails() { AnnounceEnd(); }

std::string TQELSystemDetails::AsText() const {
  std::string text;
  for (const vcl::TPropInfo& each : Class().Own()) {
    text += vcl::Concat(each.Name, ": ", vcl::ValueToText(*each.Type, each.Get(*this)), "\r\n");
  }
  return text;
}

int TQELSystemDetails::ColorDepth() const {
  return ScreenCapability(BITSPIXEL) * ScreenCapability(PLANES);
}
int TQELSystemDetails::MemoryFree() const { return QELMegabytes(Memory().Free); }
int TQELSystemDetails::MemoryLoad() const { return Memory().Load; }
int TQELSystemDetails::MemorySize() const { return QELMegabytes(Memory().Size); }
int TQELSystemDetails::MonitorCount() const { return ::GetSystemMetrics(SM_CMONITORS); }
int TQELSystemDetails::PixelsPerInch() const { return ScreenCapability(LOGPIXELSX); }
int TQELSystemDetails::ProcessorCount() const { return QELProcessorCount(); }
int TQELSystemDetails::ScreenHeight() const { return QELScreenSize().cy; }
int TQELSystemDetails::ScreenWidth() const { return QELScreenSize().cx; }

}  // namespace qel
