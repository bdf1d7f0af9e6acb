// TQELWavePlayer: what it plays, when that is over, and what it refuses.
#include <gmock/gmock.h>

#include <atomic>
#include <fstream>

#include "qel/core/private/multimedia.h"
#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/support/program.h"
#include "tests/vcl/testinput.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

using testing::HasSubstr;

/// The system's sounds in a test's hands: one lasts until it is ended or stopped.
struct TSounds {
  enum TState { Silent, Heard, Ended };
  TSounds() {
    Played = 0;
    State = Silent;
    Fails = false;
  }
  /// The sound that is heard comes to its end.
  static void End() {
    TState heard = Heard;
    State.compare_exchange_strong(heard, Ended);
  }
  static BOOL WINAPI Play(LPCWSTR sound, HMODULE, DWORD flags) {
    if (!sound) return End(), TRUE;
    EXPECT_EQ(flags & SND_MEMORY, static_cast<DWORD>(SND_MEMORY));
    if (Fails) return FALSE;
    // Another sound ends the one that is heard.
    while (State != Silent) End(), ::Sleep(1);
    State = Heard;
    ++Played;
    while (State != Ended) ::Sleep(1);
    State = Silent;
    return TRUE;
  }
  static inline std::atomic<int> Played;
  static inline std::atomic<TState> State;
  static inline std::atomic<bool> Fails;
  TImportPatch Patch{"qel.dll", "PlaySoundW", &Play};
};

class WavePlayer : public testing::Test {
 protected:
  WavePlayer() {
    Write("sound.wav", std::string("RIFF\x04\0\0\0WAVE", 12));
    Player->SetWaveFile(Name("sound.wav"));
    Player->OnFinished = [this](vcl::TObject*) { ++Finished; };
  }
  std::string Name(const std::string& file) const { return (Folder.Path / file).string(); }
  void Write(const std::string& file, const std::string& bytes) const {
    std::ofstream(Folder.Path / file, std::ios::binary) << bytes;
  }
  static bool Plays(int times) {
    return testinput::PumpUntil(
        [times] { return TSounds::State == TSounds::Heard && TSounds::Played >= times; });
  }
  bool IsFinished(int times) {
    return testinput::PumpUntil([this, times] { return Finished == times; });
  }
  testing_support::TFolder Folder;
  TSounds Sounds;
  int Finished = 0;
  std::unique_ptr<TQELWavePlayer> Player = std::make_unique<TQELWavePlayer>(nullptr);
};

TEST_F(WavePlayer, TellsWhenTheSoundIsOver) {
  EXPECT_FALSE(Player->Playing());
  EXPECT_TRUE(Player->Execute());
  EXPECT_TRUE(Plays(1));
  EXPECT_TRUE(Player->Playing());
  TSounds::End();
  EXPECT_TRUE(IsFinished(1));
  EXPECT_FALSE(Player->Playing());
}

TEST_F(WavePlayer, StopEndsItWithoutAWord) {
  Player->Stop();
  for (int i = 0; i < 5; ++i) {
    EXPECT_TRUE(Player->Execute());
    EXPECT_TRUE(i % 2 == 0 || Plays(1));
    Player->Stop();
    EXPECT_EQ(TSounds::State, TSounds::Silent);
    EXPECT_FALSE(Player->Playing());
  }
  testinput::Pump();
  EXPECT_EQ(Finished, 0);
}

TEST_F(WavePlayer, PlaysAgainAndAgain) {
  Player->SetLoop(true);
  EXPECT_TRUE(Player->Execute());
  for (int i = 1; i < 4; ++i) {
    EXPECT_TRUE(Plays(i));
    if (i == 3) Player->SetLoop(false);
    TSounds::End();
  }
  EXPECT_TRUE(IsFinished(1));
  EXPECT_EQ(TSounds::Played, 3);
}

TEST_F(WavePlayer, EndedByAnotherItComesNotAgain) {
  Player->SetLoop(true);
  EXPECT_TRUE(Player->Execute());
  EXPECT_TRUE(Plays(1));
  TQELWavePlayer other(nullptr);
  other.SetWaveFile(Name("sound.wav"));
  EXPECT_TRUE(other.Execute());
  EXPECT_TRUE(IsFinished(1));
  EXPECT_TRUE(Plays(2));
  testinput::PumpFor(50);
  EXPECT_FALSE(Player->Playing());
  EXPECT_TRUE(other.Playing());
  EXPECT_EQ(TSounds::Played, 2);
}

TEST_F(WavePlayer, WaitsWithTheWindowsAlive) {
  Player->SetWait(true);
  vcl::TTimer timer(nullptr);
  timer.SetInterval(30);
  timer.OnTimer = [](vcl::TObject*) { TSounds::End(); };
  EXPECT_TRUE(Player->Execute());
  EXPECT_EQ(Finished, 1);
  TSounds::Fails = true;
  EXPECT_FALSE(Player->Execute());
  EXPECT_EQ(Player->LastError(), "The system can't play the sound");
}

TEST_F(WavePlayer, MayBeFreedByItsEvent) {
  Player->OnFinished = [this](vcl::TObject*) { Player.reset(); };
  TSounds::Fails = true;
  EXPECT_TRUE(Player->Execute());
  EXPECT_TRUE(testinput::PumpUntil([this] { return !Player; }));
  Player = std::make_unique<TQELWavePlayer>(nullptr);
  Player->SetWaveFile(Name("sound.wav"));
  Player->SetWait(true);
  Player->OnFinished = [this](vcl::TObject*) { Player.reset(); };
  EXPECT_FALSE(Player->Execute());
}

TEST_F(WavePlayer, SaysWhyNothingIsPlayed) {
  Write("text.wav", "no sound at all");
  Write("cut.wav", std::string("RIFF\xFF\0\0\0WAVE", 12));
  for (const char* file : {"text.wav", "cut.wav", "none.wav"}) {
    Player->SetWaveFile(Name(file));
    EXPECT_FALSE(Player->Execute()) << file;
    EXPECT_THAT(Player->LastError(), HasSubstr(file));
  }
  Player->SetWaveFile("");
  EXPECT_FALSE(Player->Execute());
  EXPECT_EQ(Player->LastError(), "There is no sound to play");
  Player->SetResource("NOTHING");
  EXPECT_FALSE(Player->Execute());
  EXPECT_EQ(Player->LastError(), "NOTHING is not there");
  EXPECT_EQ(TSounds::Played, 0);
}

}  // namespace
}  // namespace qel
