// TPrinterSystem: the system's own.
#include "vcl/printing/private/printersystem.h"

#include "vcl/rtl/scope.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
// It needs what stands above.
#include <winspool.h>

#include "vcl/rtl/systemmacros.h"

namespace vcl {

namespace {

const DEVMODEW* ModeOf(const std::string& settings) {
  return settings.size() < sizeof(DEVMODEW) ? nullptr
                                            : reinterpret_cast<const DEVMODEW*>(settings.data());
}

}  // namespace

std::vector<std::string> TPrinterSystem::Printers() const {
  constexpr DWORD which = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
  DWORD size = 0;
  DWORD count = 0;
  ::EnumPrintersW(which, nullptr, 4, nullptr, 0, &size, &count);
  std::vector<BYTE> buffer(size);
  std::vector<std::string> names;
  if (!size || !::EnumPrintersW(which, nullptr, 4, buffer.data(), size, &size, &count))
    return names;
  const auto* infos = reinterpret_cast<const PRINTER_INFO_4W*>(buffer.data());
  for (DWORD i = 0; i < count; ++i) names.push_back(ToUtf8(infos[i].pPrinterName));
  return names;
}

std::string TPrinterSystem::DefaultPrinter() const {
  wchar_t name[1024];
  DWORD size = static_cast<DWORD>(std::size(name));
  return ::GetDefaultPrinterW(name, &size) ? ToUtf8(std::wstring_view(name)) : std::string();
}

std::string TPrinterSystem::Settings(const std::string& printer) const {
  std::wstring name = ToUtf16(printer);
  HANDLE handle = nullptr;
  if (!::OpenPrinterW(name.data(), &handle, nullptr)) return {};
  const TAtEnd close([handle] { ::ClosePrinter(handle); });
  const LONG size = ::DocumentPropertiesW(nullptr, handle, name.data(), nullptr, nullptr, 0);
  if (size < static_cast<LONG>(sizeof(DEVMODEW))) return {};
  std::string settings(static_cast<std::size_t>(size), '\0');
  const LONG answer =
      ::DocumentPropertiesW(nullptr, handle, name.data(),
                            reinterpret_cast<DEVMODEW*>(settings.data()), nullptr, DM_OUT_BUFFER);
  return answer == IDOK ? settings : std::string();
}

int TPrinterSystem::Capability(const std::string& printer, unsigned short which,
                               const std::string& settings) const {
  return static_cast<int>(
      ::DeviceCapabilitiesW(ToUtf16(printer).c_str(), nullptr, which, nullptr, ModeOf(settings)));
}

HDC TPrinterSystem::Open(const std::string& printer, const std::string& settings,
                         bool onlyToAsk) const {
  const std::wstring name = ToUtf16(printer);
  return (onlyToAsk ? ::CreateICW : ::CreateDCW)(L"WINSPOOL", name.c_str(), nullptr,
                                                 ModeOf(settings));
}

TPageMetrics TPrinterSystem::Metrics(HDC context) const {
  const auto ask = [context](int what) { return ::GetDeviceCaps(context, what); };
  return {{ask(HORZRES), ask(VERTRES)},
          {ask(PHYSICALWIDTH), ask(PHYSICALHEIGHT)},
          {ask(PHYSICALOFFSETX), ask(PHYSICALOFFSETY)},
          {ask(LOGPIXELSX), ask(LOGPIXELSY)}};
}

bool TPrinterSystem::StartDocument(HDC context, const std::string& title,
                                   const std::string& file) const {
  const std::wstring name = ToUtf16(title);
  const std::wstring output = ToUtf16(file);
  DOCINFOW info{};
  info.cbSize = sizeof info;
  info.lpszDocName = name.c_str();
  info.lpszOutput = file.empty() ? nullptr : output.c_str();
  return ::StartDocW(context, &info) > 0;
}

bool TPrinterSystem::StartPage(HDC context) const { return ::StartPage(context) > 0; }
bool TPrinterSystem::EndPage(HDC context) const { return ::EndPage(context) > 0; }
bool TPrinterSystem::EndDocument(HDC context) const { return ::EndDoc(context) > 0; }
void TPrinterSystem::Abort(HDC context) const { ::AbortDoc(context); }

}  // namespace vcl
