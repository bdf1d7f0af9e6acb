// TQELWavePlayer: its table, the sound's bytes, and the thread that plays them.
#include "qel/services/Qeltwaveplayer.h"

#include <atomic>

#include "qel/core/private/multimedia.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/thread.h"
#include "vcl/rtl/utf16.h"

namespace qel {

/// Plays the bytes of a sound. The system's own playing beside the program tells nobody its end.
class TQELWavePlayer::TPlay : public vcl::TThread {
 public:
  TPlay(TQELWavePlayer& player, std::string sound)
      : FPlayer(player), FSound(std::move(sound)), FLoop(player.Loop()) {}
  /// Between its beginning and the system's call the thread can't be stopped, so that it is told
  /// until it has heard.
  ~TPlay() override {
    Terminate();
    while (FStarted && !Finished()) {
      ::PlaySoundW(nullptr, nullptr, 0);
      ::Sleep(1);
    }
    EndThread();
  }
  void Begin() {
    Latest = this;
    Start();
    FStarted = true;
  }
  bool Failed() const { return FFailed; }
  void SetLoop(bool loop) { FLoop = loop; }

 protected:
  void Execute() override {
    const auto* bytes = reinterpret_cast<const wchar_t*>(FSound.data());
    do {
      FFailed = !::PlaySoundW(bytes, nullptr, SND_MEMORY | SND_SYNC | SND_NODEFAULT);
    } while (FLoop && !FFailed && !Terminated() && Latest == this);
    Queue([&player = FPlayer] { player.Finished(); });
  }

 private:
  /// The one that began last: what it has ended does not come again.
  static inline std::atomic<const TPlay*> Latest;

  TQELWavePlayer& FPlayer;
  std::string FSound;
  bool FStarted = false;
  std::atomic<bool> FLoop;
  std::atomic<bool> FFailed = false;
};

const vcl::TClass& TQELWavePlayer::Class() {
  using T = TQELWavePlayer;
  using namespace vcl;
  static const TClass info = Describe<T, TQELExecComponent>(
      "qel::TQELWavePlayer", "qel/services/Qeltwaveplayer.h",
      {
          Property<&T::Loop, &T::SetLoop>("Loop").Default(false),
          Event<&T::OnFinished>("OnFinished"),
          Property<&T::Resource, &T::SetResource>("Resource").Default(""),
          Property<&T::Wait, &T::SetWait>("Wait").Default(false),
          Property<&T::WaveFile, &T::SetWaveFile>("WaveFile").Default(""),
      });
  return info;
}

TQELWavePlayer::TQELWavePlayer(vcl::TComponent* owner) : TQELExecComponent(owner) {}

TQELWavePlayer::~TQELWavePlayer() {
  AnnounceEnd();
  Stop();
}

namespace {

/// The bytes of a resource of the program; empty where it has none of that name.
std::string ResourceBytes(const std::string& name) {
  const HMODULE program = ::GetModuleHandleW(nullptr);
  const HRSRC place = ::FindResourceW(program, vcl::ToUtf16(name).c_str(), L"WAVE");
  const HGLOBAL loaded = place ? ::LoadResource(program, place) : nullptr;
  const void* bytes = loaded ? ::LockResource(loaded) : nullptr;
  if (!bytes) return {};
  return {static_cast<const char*>(bytes), ::SizeofResource(program, place)};
}

/// "RIFF", the size of the rest, "WAVE". The system reads as far as the size says.
bool IsSound(const std::string& bytes) {
  if (bytes.size() < 12 || !bytes.starts_with("RIFF") || bytes.compare(8, 4, "WAVE") != 0)
    return false;
  std::uint32_t size = 0;
  for (int i = 3; i >= 0; --i) size = size << 8 | static_cast<unsigned char>(bytes[4 + i]);
  return size <= bytes.size() - 8;
}

}  // namespace

/// Empty when there is none, as LastError then says.
std::string TQELWavePlayer::Sound() {
  std::string bytes;
  const std::string& name = FWaveFile.empty() ? FResource : FWaveFile;
  try {
    bytes = FWaveFile.empty() ? ResourceBytes(FResource)
                              : vcl::ReadWholeFile(FWaveFile).value_or(std::string());
  } catch (const vcl::EInOutError& error) {
    FLastError = error.what();
    return {};
  }
  if (IsSound(bytes)) return bytes;
  FLastError = name.empty() ? "There is no sound to play"
                            : vcl::Concat(name, bytes.empty() ? " is not there" : " is no sound");
  return {};
}

bool TQELWavePlayer::Execute() {
  Stop();
  FLastError.clear();
  std::string sound = Sound();
  if (sound.empty()) return false;
  FFinished = false;
  FPlay = std::make_unique<TPlay>(*this, std::move(sound));
  FPlay->Begin();
  return !FWait || WaitForEnd();
}

/// The event is fired meanwhile, and may free the component.
bool TQELWavePlayer::WaitForEnd() {
  const vcl::TWatch watch(this);
  while (!watch.Gone() && Playing() && !vcl::BaseApplication().Terminated()) {
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    vcl::BaseApplication().ProcessMessages();
  }
  return !watch.Gone() && FLastError.empty();
}

void TQELWavePlayer::Stop() { FPlay.reset(); }

bool TQELWavePlayer::Playing() const { return FPlay && !FFinished; }

void TQELWavePlayer::SetLoop(bool loop) {
  FLoop = loop;
  if (FPlay) FPlay->SetLoop(loop);
}

void TQELWavePlayer::Finished() {
  FFinished = true;
  if (FPlay->Failed()) FLastError = "The system can't play the sound";
  OnFinished(this);
}

}  // namespace qel
