// TFileTransfer: the walk through the trees, and what is done to a single file.
#include "qel/shell/private/filetransfer.h"

#include <algorithm>

#include "vcl/rtl/filenames.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace qel {
namespace {

using folders::TEntry;

/// A full name, exactly as it is: the system takes dots and blanks from the ends of others, and so
/// might touch another file.
std::wstring Exact(const std::string& path) {
  std::wstring wide = vcl::ToUtf16(path);
  if (wide.starts_with(L"\\\\?\\")) return wide;
  return wide.starts_with(L"\\\\") ? L"\\\\?\\UNC" + wide.substr(1) : L"\\\\?\\" + wide;
}

[[noreturn]] void Fail(const char* what, const std::string& path, DWORD error = ::GetLastError()) {
  throw EQELSystemError(vcl::Concat(what, " '", path, "'"), static_cast<int>(error));
}

DWORD AttributesOf(const std::string& path) { return ::GetFileAttributesW(Exact(path).c_str()); }
bool IsThere(const std::string& path) { return AttributesOf(path) != INVALID_FILE_ATTRIBUTES; }

/// Bytes are on the disk when this returns: what is replaced or deleted next is needed no more.
void Flush(const std::string& path) {
  const HANDLE file = ::CreateFileW(Exact(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  // One that may only be read was so at its source: the system has written all it can.
  if (file == INVALID_HANDLE_VALUE) return;
  ::FlushFileBuffers(file);
  ::CloseHandle(file);
}

/// Follows links, as what is found below is to be found below once.
std::pair<std::uint32_t, std::uint64_t> IdOf(const std::string& path) {
  return folders::IdOf(path).value_or(std::pair<std::uint32_t, std::uint64_t>{});
}

std::string WithoutDelimiter(const std::string& path) {
  return vcl::ExcludeTrailingPathDelimiter(vcl::ExpandFileName(path));
}

/// The entries of a folder, as what is done to them changes what a search would find.
std::vector<TEntry> EntriesOf(const std::string& path) {
  std::vector<TEntry> entries;
  try {
    folders::ScanEntries(path + "\\", [&](const TEntry& entry) {
      entries.push_back(entry);
      return true;
    });
  } catch (const vcl::EInOutError&) {
    Fail("Cannot read the folder", path);
  }
  return entries;
}

TEntry EntryOf(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (!::GetFileAttributesExW(Exact(path).c_str(), GetFileExInfoStandard, &data)) {
    Fail("There is no", path);
  }
  return {vcl::ExtractFileName(path), std::uint32_t{data.dwFileAttributes},
          std::uint64_t{data.nFileSizeHigh} << 32 | data.nFileSizeLow, 0};
}

/// "name (2).ext", or with the next number that is free.
std::string FreeName(const std::string& path) {
  const std::string extension = vcl::ExtractFileExt(path);
  const std::string start = path.substr(0, path.size() - extension.size());
  for (int number = 2;; ++number) {
    std::string name = vcl::Concat(start, " (", std::to_string(number), ")", extension);
    if (!IsThere(name)) return name;
  }
}

}  // namespace

// ---- The walk ----

void TFileTransfer::Go(const std::string& path, double ofFile) {
  const double done = static_cast<double>(FDone) + ofFile * static_cast<double>(FSize);
  const double all = static_cast<double>(std::max<std::uint64_t>(FTotal, 1));
  if (!FAsks.Going(path, std::min(1.0, done / all))) throw TAborted{};
}

/// Does the step, again as often as is wanted; false when it was left out.
template <class Step>
bool TFileTransfer::Try(const std::string& path, Step step) {
  for (;;) {
    try {
      step();
      return true;
    } catch (const EQELSystemError& error) {
      const TFailed answer = FAsks.Failed(path, error);
      if (answer == TFailed::Abort) throw TAborted{};
      if (answer == TFailed::Skip) return false;
    }
  }
}

/// Adds up the bytes. What cannot be read is told when it is its turn.
void TFileTransfer::Measure(const std::string& path, std::vector<TId>& above) {
  try {
    const TEntry entry = EntryOf(path);
    if (!entry.IsFolder()) {
      FTotal += entry.Size;
      return;
    }
    const TId id = IdOf(path + "\\");
    if (std::ranges::find(above, id) != above.end()) return;
    above.push_back(id);
    const vcl::TAtEnd leave([&] { above.pop_back(); });
    Go(path);
    for (const TEntry& each : EntriesOf(path)) Measure(path + "\\" + each.Name, above);
  } catch (const EQELSystemError&) {
    return;
  }
}

template <class Work>
bool TFileTransfer::Run(const std::vector<std::string>& sources, Work work) {
  FTotal = FDone = FSize = 0;
  try {
    for (const std::string& each : sources) {
      std::vector<TId> above;
      Measure(WithoutDelimiter(each), above);
    }
    for (const std::string& each : sources) work(WithoutDelimiter(each));
    return true;
  } catch (const TAborted&) {
    return false;
  }
}

bool TFileTransfer::Transfer(const std::vector<std::string>& sources, const std::string& folder,
                             bool move) {
  const std::string target = WithoutDelimiter(folder);
  return Run(sources, [&](const std::string& source) {
    Try(target, [&] {
      try {
        folders::Make(target);
      } catch (const vcl::EInOutError&) {
        Fail("Cannot make the folder", target);
      }
    });
    Put(source,
        vcl::Concat(target, target.ends_with('\\') ? "" : "\\", vcl::ExtractFileName(source)),
        move);
  });
}

bool TFileTransfer::Delete(const std::vector<std::string>& sources) {
  return Run(sources, [&](const std::string& source) { Remove(source); });
}

/// Asks what is to become of a target that is there; false when the source is to be left out.
bool TFileTransfer::Resolve(const std::string& source, std::string& target) {
  switch (FAsks.Taken(source, target)) {
    case TNameTaken::Abort: throw TAborted{};
    case TNameTaken::Skip: return false;
    case TNameTaken::Rename: target = FreeName(target); return true;
    case TNameTaken::Replace: return true;
  }
  return false;
}

void TFileTransfer::Put(const std::string& source, std::string target, bool move) {
  Try(source, [&] {
    Go(source);
    const TEntry entry = EntryOf(source);
    const bool same =
        IsThere(target) && IdOf(source) == IdOf(target) && vcl::AnsiSameText(source, target);
    if (same && move) return;  // It is there already.
    if (same) {
      target = FreeName(target);
    } else if (IsThere(target)) {
      const bool bothFolders =
          entry.IsFolder() && (AttributesOf(target) & FILE_ATTRIBUTE_DIRECTORY) != 0;
      // A file never gives way to a folder, nor a folder to a file.
      const bool alike =
          entry.IsFolder() == ((AttributesOf(target) & FILE_ATTRIBUTE_DIRECTORY) != 0);
      if (!bothFolders && !Resolve(source, target)) {
        FDone += entry.Size;
        return;
      }
      if (!alike && IsThere(target)) Fail("Cannot replace", target, ERROR_ALREADY_EXISTS);
    }
    entry.IsFolder() ? PutFolder(source, target, move) : PutFile(source, target, move);
  });
}

void TFileTransfer::PutFolder(const std::string& source, const std::string& target, bool move) {
  const TId id = IdOf(source + "\\");
  if (std::ranges::find(FAbove, id) != FAbove.end()) {
    Fail("A link leads to a folder that holds it:", source, ERROR_CIRCULAR_DEPENDENCY);
  }
  // The target, or a folder above it, must not be what is copied.
  for (std::string above = target + "\\"; !above.empty(); above = folders::ParentOf(above)) {
    if (id != TId{} && folders::Exists(above) && IdOf(above) == id) {
      Fail("A folder cannot be put into itself:", source, ERROR_INVALID_PARAMETER);
    }
  }
  const bool link = EntryOf(source).IsLink();
  // On its drive a folder goes as a whole, and a link as a link.
  if (move && !IsThere(target) && ::MoveFileExW(Exact(source).c_str(), Exact(target).c_str(), 0)) {
    return;
  }
  if (!IsThere(target) && !::CreateDirectoryW(Exact(target).c_str(), nullptr)) {
    Fail("Cannot make the folder", target);
  }
  FAbove.push_back(id);
  const vcl::TAtEnd leave([&] { FAbove.pop_back(); });
  for (const TEntry& each : EntriesOf(source)) {
    Put(source + "\\" + each.Name, target + "\\" + each.Name, move && !link);
  }
  // What was left out stays in its folder.
  if (move && (link || EntriesOf(source).empty())) {
    if (!::RemoveDirectoryW(Exact(source).c_str())) Fail("Cannot delete the folder", source);
  }
}

void TFileTransfer::PutFile(const std::string& source, const std::string& target, bool move) {
  FSize = EntryOf(source).Size;
  const vcl::TAtEnd done([&] { FDone += std::exchange(FSize, 0); });
  // On one drive a file goes by its name alone.
  if (move &&
      ::MoveFileExW(Exact(source).c_str(), Exact(target).c_str(), MOVEFILE_REPLACE_EXISTING)) {
    return;
  }
  const DWORD error = ::GetLastError();
  if (move && error != ERROR_NOT_SAME_DEVICE) Fail("Cannot move", source, error);
  CopyWhole(source, target);
  if (move && !::DeleteFileW(Exact(source).c_str())) Fail("Cannot delete", source);
}

namespace {

/// What the system calls while it copies.
DWORD CALLBACK Progress(LARGE_INTEGER total, LARGE_INTEGER done, LARGE_INTEGER, LARGE_INTEGER,
                        DWORD, DWORD, HANDLE, HANDLE, LPVOID told) {
  const auto& tell = *static_cast<const std::function<bool(double)>*>(told);
  const double all = std::max(1.0, static_cast<double>(total.QuadPart));
  return tell(static_cast<double>(done.QuadPart) / all) ? PROGRESS_CONTINUE : PROGRESS_CANCEL;
}

}  // namespace

/// Under another name first: whatever happens, the target is the former file or the new one.
void TFileTransfer::CopyWhole(const std::string& source, const std::string& target) {
  const std::string half = target + ".~new";
  bool aborted = false;
  std::exception_ptr raised;
  const std::function<bool(double)> tell = [&](double done) {
    try {
      Go(source, done);
    } catch (const TAborted&) {
      aborted = true;
    } catch (...) {
      raised = std::current_exception();  // No exception passes the system.
    }
    return !aborted && !raised;
  };
  const vcl::TOnFailure away([&] { ::DeleteFileW(Exact(half).c_str()); });
  const BOOL copied = ::CopyFileExW(Exact(source).c_str(), Exact(half).c_str(), &Progress,
                                    const_cast<std::function<bool(double)>*>(&tell), nullptr, 0);
  const DWORD error = ::GetLastError();
  if (raised) std::rethrow_exception(raised);
  if (aborted) throw TAborted{};
  if (!copied) Fail("Cannot copy", source, error);
  Flush(half);
  if (!::MoveFileExW(Exact(half).c_str(), Exact(target).c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
    Fail("Cannot write", target);
  }
}

/// A link goes as a link: what it leads to is not entered.
void TFileTransfer::Remove(const std::string& path) {
  Try(path, [&] {
    const TEntry entry = EntryOf(path);
    Go(path);
    if (!entry.IsFolder()) {
      if (!::DeleteFileW(Exact(path).c_str())) Fail("Cannot delete", path);
      FDone += entry.Size;
      return;
    }
    if (!entry.IsLink()) {
      for (const TEntry& each : EntriesOf(path)) Remove(path + "\\" + each.Name);
      if (!EntriesOf(path).empty()) return;  // Some of it was left out.
    }
    if (!::RemoveDirectoryW(Exact(path).c_str())) Fail("Cannot delete the folder", path);
  });
}

}  // namespace qel
