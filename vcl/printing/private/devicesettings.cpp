// The blocks of the system's dialogs about printers.
#include "vcl/printing/private/devicesettings.h"

#include <cstring>

#include "vcl/rtl/utf16.h"
#include "vcl/transfer/private/comdata.h"

namespace vcl {

namespace {

/// The record of a printer's driver, name and port.
std::string NamesRecord(const std::string& printer) {
  const std::wstring texts = std::wstring(L"winspool\0", 9) + ToUtf16(printer) + L'\0' + L'\0';
  constexpr auto head = static_cast<WORD>(sizeof(DEVNAMES) / sizeof(wchar_t));
  DEVNAMES names{};
  names.wDriverOffset = head;
  names.wDeviceOffset = head + 9;
  names.wOutputOffset = static_cast<WORD>(head + texts.size() - 1);
  std::string record(reinterpret_cast<const char*>(&names), sizeof names);
  return record.append(reinterpret_cast<const char*>(texts.data()), texts.size() * sizeof(wchar_t));
}

std::string PrinterIn(const std::string& record) {
  DEVNAMES names{};
  if (record.size() < sizeof names) return {};
  std::memcpy(&names, record.data(), sizeof names);
  std::wstring texts(record.size() / sizeof(wchar_t), L'\0');
  std::memcpy(texts.data(), record.data(), texts.size() * sizeof(wchar_t));
  if (names.wDeviceOffset >= texts.size()) return {};
  texts.erase(0, names.wDeviceOffset);
  return ToUtf8(texts.substr(0, texts.find(L'\0')));
}

}  // namespace

TDeviceBlocks::TDeviceBlocks(const TPrinter& printer) {
  const std::string names = NamesRecord(printer.PrinterName());
  if (!printer.Settings().empty()) Mode = MakeBlock(printer.Settings());
  Names = MakeBlock(names);
}

TDeviceBlocks::~TDeviceBlocks() {
  if (Mode) ::GlobalFree(Mode);
  if (Names) ::GlobalFree(Names);
}

void TDeviceBlocks::ApplyTo(TPrinter& printer) const {
  const std::string name = Names ? PrinterIn(BlockBytes(Names)) : std::string();
  printer.SetSettings(name.empty() ? printer.PrinterName() : name,
                      Mode ? BlockBytes(Mode) : std::string());
}

}  // namespace vcl
