// TQELLogFile: its table, and how an entry becomes a line.
#include "qel/shell/Qeltlogfile.h"

#include <array>
#include <atomic>
#include <mutex>
#include <string_view>

#include "qel/shell/private/logqueue.h"
#include "vcl/controls/messagewindow.h"
#include "vcl/forms/applicationlistener.h"
#include "vcl/rtl/datetime.h"
#include "vcl/rtl/properties.h"

namespace qel {
namespace {

constexpr UINT ErrorsMessage = WM_USER + 1;
constexpr const char* DefaultTime = "yyyy-mm-dd hh:nn:ss.zzz";

constexpr std::array<std::string_view, 4> Names = {"DEBUG", "INFO", "WARNING", "ERROR"};

/// The text in one line.
std::string Escaped(std::string_view text) {
  constexpr const char* digits = "0123456789abcdef";
  std::string line;
  line.reserve(text.size());
  for (const char each : text) {
    const auto code = static_cast<unsigned char>(each);
    if (code >= ' ' || each == '\t') {
      line += each;
    } else if (each == '\n' || each == '\r') {
      line += each == '\n' ? "\\n" : "\\r";
    } else {
      line += {'\\', 'x', digits[code >> 4], digits[code & 15]};
    }
  }
  return line;
}

}  // namespace

/// What threads share.
struct TQELLogFile::TState {
  explicit TState(std::function<void(const std::string& why)> failed) : Queue(std::move(failed)) {}

  std::atomic<TQELLogLevel> Level = llDebug;
  std::atomic<bool> HasFile = false;
  mutable std::mutex Mutex;  // Of the format and the text.
  std::string TimeFormat = DefaultTime;
  std::string Failure;
  TLogQueue Queue;
};

/// Hears the errors that nobody has caught.
class TQELLogFile::THearer : public vcl::TApplicationListener {
 public:
  explicit THearer(TQELLogFile& log) : FLog(log) {}
  void Error(vcl::TObject* /*sender*/, const std::exception& error, bool& /*handled*/) override {
    if (FLog.LogExceptions()) FLog.Add(llError, error.what());
  }

 private:
  TQELLogFile& FLog;
};

const vcl::TClass& TQELLogFile::Class() {
  using T = TQELLogFile;
  using namespace vcl;
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELLogFile", "qel/shell/Qeltlogfile.h",
      {
          Property<&T::Level, &T::SetLevel>("Level").Default(llDebug),
          Property<&T::LogExceptions, &T::SetLogExceptions>("LogExceptions").Default(false),
          Property<&T::LogFile, &T::SetLogFile>("LogFile").Default(""),
          Property<&T::MaxFiles, &T::SetMaxFiles>("MaxFiles").Default(0),
          Property<&T::MaxSize, &T::SetMaxSize>("MaxSize").Default(0),
          Event<&T::OnError>("OnError").Type("TQELLogErrorEvent",
                                             "vcl::TObject* sender, const std::string& why"),
          Property<&T::TimeFormat, &T::SetTimeFormat>("TimeFormat").Default(DefaultTime),
      });
  return info;
}

TQELLogFile::TQELLogFile(vcl::TComponent* owner)
    : TQELComponent(owner), FState(std::make_unique<TState>([this](const std::string& why) {
        {
          const std::scoped_lock lock(FState->Mutex);
          FState->Failure = why;
        }
        ::PostMessageW(FWindow, ErrorsMessage, 0, 0);
      })) {
  if (Designing()) return;
  FWindow = vcl::AllocateHWnd({this, &TQELLogFile::Heard});
  FHearer = std::make_unique<THearer>(*this);
}

TQELLogFile::~TQELLogFile() {
  AnnounceEnd();
  FHearer.reset();
  FState->Queue.Flush();
  vcl::DeallocateHWnd(FWindow);
}

void TQELLogFile::Heard(vcl::TMessage& message) {
  if (message.Msg != ErrorsMessage) {
    message.Result = ::DefWindowProcW(FWindow, message.Msg, message.WParam, message.LParam);
    return;
  }
  std::string why;
  {
    const std::scoped_lock lock(FState->Mutex);
    why = FState->Failure;
  }
  OnError(this, why);
}

// Entries.

bool TQELLogFile::Add(TQELLogLevel level, const std::string& text) {
  if (level < FState->Level || level > llError || !FState->HasFile || Designing()) return false;
  return FState->Queue.Add(Line(level, text), level == llError);
}

std::string TQELLogFile::Line(TQELLogLevel level, const std::string& text) const {
  std::string format;
  {
    const std::scoped_lock lock(FState->Mutex);
    format = FState->TimeFormat;
  }
  std::string line = format.empty() ? format : vcl::FormatDateTime(format, vcl::Now()) + " ";
  line += Names[static_cast<std::size_t>(level)];
  line += ' ';
  line += text;
  return Escaped(line) + "\r\n";
}

bool TQELLogFile::Flush() { return FState->Queue.Flush(); }

std::string TQELLogFile::LastError() const { return FState->Queue.LastError(); }

// Properties.

TQELLogLevel TQELLogFile::Level() const { return FState->Level; }

void TQELLogFile::SetLevel(TQELLogLevel level) { FState->Level = level; }

void TQELLogFile::SetLogFile(const std::string& fileName) {
  if (fileName == FLogFile) return;
  FLogFile = fileName;
  FState->HasFile = !fileName.empty();
  FState->Queue.Change([&](TLogWriter& writer) { writer.SetFile(fileName); });
}

void TQELLogFile::SetMaxFiles(int count) {
  if (count < 0) return;
  FMaxFiles = count;
  FState->Queue.Change([count](TLogWriter& writer) { writer.SetMaxFiles(count); });
}

void TQELLogFile::SetMaxSize(int kilobytes) {
  if (kilobytes < 0) return;
  FMaxSize = kilobytes;
  const std::uint64_t bytes = std::uint64_t{1024} * static_cast<unsigned>(kilobytes);
  FState->Queue.Change([bytes](TLogWriter& writer) { writer.SetMaxSize(bytes); });
}

const std::string& TQELLogFile::TimeFormat() const { return FState->TimeFormat; }

void TQELLogFile::SetTimeFormat(const std::string& format) {
  const std::scoped_lock lock(FState->Mutex);
  FState->TimeFormat = format;
}

}  // namespace qel
