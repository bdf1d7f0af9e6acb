// Faults of the processor as exceptions, and the last word of a process that can't raise them.
#include "vcl/forms/private/faults.h"

#include <cstdint>
#include <string>
#include <utility>

#include "vcl/forms/application.h"
#include "vcl/forms/module.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

struct TFault {
  DWORD Code = 0;
  std::uintptr_t Where = 0;
  /// Of an access violation: 0 for reading, 1 for writing, 8 for executing; and the address.
  ULONG_PTR Access = 0;
  ULONG_PTR Address = 0;
};

/// The fault that is about to be raised; set by the system's call, used behind it.
thread_local TFault Current;

TFault FaultOf(const EXCEPTION_RECORD& record) {
  TFault fault{record.ExceptionCode, reinterpret_cast<std::uintptr_t>(record.ExceptionAddress)};
  if (record.NumberParameters >= 2) {
    fault.Access = record.ExceptionInformation[0];
    fault.Address = record.ExceptionInformation[1];
  }
  return fault;
}

std::string Hex(std::uintptr_t number) {
  constexpr int digits = 2 * sizeof number;
  std::string text;
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    text += "0123456789ABCDEF"[(number >> shift) & 0xF];
  }
  return text;
}

HMODULE ModuleAt(std::uintptr_t address) {
  if (address == 0) return nullptr;  // Which the system would take for the program.
  HMODULE module = nullptr;
  constexpr DWORD asIs =
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  ::GetModuleHandleExW(asIs, reinterpret_cast<LPCWSTR>(address), &module);
  return module;
}

std::string FileNameOf(HMODULE module) {
  wchar_t name[MAX_PATH] = L"";
  ::GetModuleFileNameW(module, name, MAX_PATH);
  return ExtractFileName(ToUtf8(name));
}

/// "00401A2B (demo.exe+00001A2B)", by which a map file or a debugger finds the line.
std::string Place(std::uintptr_t address) {
  const HMODULE module = ModuleAt(address);
  if (!module) return Hex(address);
  const std::uintptr_t offset = address - reinterpret_cast<std::uintptr_t>(module);
  return Concat(Hex(address), " (", FileNameOf(module), "+", Hex(offset), ")");
}

std::string Described(const TFault& fault) {
  if (fault.Code == EXCEPTION_INT_DIVIDE_BY_ZERO) {
    return Concat("Division by zero at ", Place(fault.Where));
  }
  if (fault.Code != EXCEPTION_ACCESS_VIOLATION) {
    return Concat("Fault ", Hex(fault.Code), " at ", Place(fault.Where));
  }
  constexpr ULONG_PTR writing = 1;
  constexpr ULONG_PTR executing = 8;
  const char* const tried = fault.Access == writing     ? "write to"
                            : fault.Access == executing ? "run code at"
                                                        : "read";
  return Concat("Access violation at ", Place(fault.Where), ": the program tried to ", tried,
                " address ", Hex(fault.Address));
}

#ifdef __GNUC__

/// Whether the module uses this library, as its import table tells.
bool UsesThisLibrary(HMODULE module) {
  const HMODULE own = ModuleOf(reinterpret_cast<const void*>(&CatchFaults));
  if (module == own) return true;
  const auto* base = reinterpret_cast<const char*>(module);
  const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
  const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const IMAGE_DATA_DIRECTORY& imports =
      nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  if (imports.VirtualAddress == 0) return false;
  const std::string name = FileNameOf(own);
  const auto* each =
      reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + imports.VirtualAddress);
  for (; each->Name; ++each) {
    if (SameText(base + each->Name, name)) return true;
  }
  return false;
}

bool IsOurCode(std::uintptr_t address) {
  const HMODULE module = ModuleAt(address);
  return module && UsesThisLibrary(module);
}

// Raised from a function that the faulting instruction seems to have called: thrown inside the
// system's call, it would find no way past the system.
[[noreturn]] void Raise() {
  const std::string text = Described(Current);
  if (Current.Code == EXCEPTION_INT_DIVIDE_BY_ZERO) throw EDivByZero(text);
  throw EAccessViolation(text);
}

extern "C" [[noreturn]] __attribute__((used)) void VclRaiseFault() { Raise(); }

#ifdef _WIN64
// A function without a frame of its own faults on a stack that no call has left: aligned anew here,
// with the frame's way back told to the unwinder.
extern "C" void VclFaultEntry();
asm(R"(
  .text
  .globl VclFaultEntry
  .seh_proc VclFaultEntry
VclFaultEntry:
  pushq %rbp
  .seh_pushreg %rbp
  movq %rsp, %rbp
  .seh_setframe %rbp, 0
  .seh_endprologue
  andq $-16, %rsp
  subq $32, %rsp
  call VclRaiseFault
  nop
  .seh_endproc
)");
std::uintptr_t& StackPointer(CONTEXT& context) { return context.Rsp; }
void GoOnAt(CONTEXT& context, void (*entry)()) {
  context.Rip = reinterpret_cast<std::uintptr_t>(entry);
}
#else
void VclFaultEntry() { VclRaiseFault(); }
DWORD& StackPointer(CONTEXT& context) { return context.Esp; }
void GoOnAt(CONTEXT& context, void (*entry)()) { context.Eip = reinterpret_cast<DWORD>(entry); }
#endif

LONG CALLBACK RaiseAsException(EXCEPTION_POINTERS* pointers) {
  const DWORD code = pointers->ExceptionRecord->ExceptionCode;
  if (code != EXCEPTION_ACCESS_VIOLATION && code != EXCEPTION_INT_DIVIDE_BY_ZERO) {
    return EXCEPTION_CONTINUE_SEARCH;
  }
  TFault fault = FaultOf(*pointers->ExceptionRecord);
  CONTEXT& context = *pointers->ContextRecord;
  auto& stack = StackPointer(context);
  // A call of what is no code has left its way back on the stack.
  const bool called = !ModuleAt(fault.Where);
  if (called) fault.Where = *reinterpret_cast<std::uintptr_t*>(stack) - 1;
  if (!IsOurCode(fault.Where)) return EXCEPTION_CONTINUE_SEARCH;
  if (!called) {
    // The unwinder takes a return address for one behind a call.
    stack -= sizeof(std::uintptr_t);
    *reinterpret_cast<std::uintptr_t*>(stack) = fault.Where + 1;
  }
  Current = fault;
  GoOnAt(context, &VclFaultEntry);
  return EXCEPTION_CONTINUE_EXECUTION;
}

#endif

DWORD CALLBACK TellFault(void* fault) {
  const std::string text = Concat(Described(*static_cast<const TFault*>(fault)),
                                  ".\n\nThe program can't go on and ends now.");
  ::MessageBoxW(nullptr, ToUtf16(text).c_str(), ToUtf16(Application()->Title()).c_str(),
                MB_OK | MB_ICONERROR | MB_TASKMODAL | MB_SETFOREGROUND);
  return 0;
}

// The box has a thread of its own: this one's stack may be used up, and its windows half done.
LONG CALLBACK TellAndEnd(EXCEPTION_POINTERS* pointers) {
  TFault fault = FaultOf(*pointers->ExceptionRecord);
  if (const HANDLE thread = ::CreateThread(nullptr, 0, &TellFault, &fault, 0, nullptr)) {
    ::WaitForSingleObject(thread, INFINITE);
    ::CloseHandle(thread);
  }
  ::TerminateProcess(::GetCurrentProcess(), fault.Code);
  return EXCEPTION_EXECUTE_HANDLER;
}

}  // namespace

void CatchFaults() {
  static bool caught = false;
  if (std::exchange(caught, true)) return;
#ifdef __GNUC__
  ::AddVectoredExceptionHandler(0, &RaiseAsException);
#endif
  ::SetUnhandledExceptionFilter(&TellAndEnd);
}

}  // namespace vcl
