// TQELStartup: its entry in the system's registry, which is the test's own.
#include <gmock/gmock.h>

#include "qel/qel.h"
#include "vcl/rtl/registry.h"
#include "vcl/rtl/win32.h"
#include "vcl/vcl.h"

namespace qel {
namespace {

class Startup : public testing::Test {
 protected:
  Startup() { Start.SetEntryName("QELTests.Startup"); }
  ~Startup() override { Start.Remove(); }
  /// What the system would run, always and once.
  static std::string Entry(const char* list) {
    vcl::TRegistry registry(KEY_QUERY_VALUE);
    const bool open = registry.OpenKeyReadOnly(
        std::string("\\Software\\Microsoft\\Windows\\CurrentVersion\\") + list);
    return open ? registry.ReadString("QELTests.Startup") : std::string();
  }
  static std::string Entries() { return Entry("Run") + "|" + Entry("RunOnce"); }
  TQELStartup Start{nullptr};
};

TEST_F(Startup, ComesAndGoes) {
  const std::string self = "\"" + vcl::BaseApplication().ExeName() + "\"";
  EXPECT_FALSE(Start.Active());
  EXPECT_TRUE(Start.Remove()) << "there is none";
  EXPECT_TRUE(Start.Install()) << Start.LastError();
  EXPECT_TRUE(Start.Active());
  EXPECT_EQ(Entries(), self + "|");
  Start.SetCommand("other.exe /x");
  EXPECT_FALSE(Start.Active()) << "what is there starts another command";
  Start.SetOnce(true);
  Start.SetActive(true);
  EXPECT_TRUE(Start.Active());
  EXPECT_EQ(Entries(), "|other.exe /x");
  Start.SetOnce(false);
  EXPECT_FALSE(Start.Active());
  Start.SetActive(false);
  EXPECT_EQ(Entries(), "|");
}

TEST_F(Startup, SaysWhyItWasRefused) {
  Start.SetEntryName(std::string(20000, 'n'));
  EXPECT_FALSE(Start.Install());
  EXPECT_NE(Start.LastError(), "");
  EXPECT_FALSE(Start.Active());
  Start.SetEntryName("QELTests.Startup");
  EXPECT_TRUE(Start.Install());
  EXPECT_EQ(Start.LastError(), "");
}

TEST_F(Startup, TheDesignerChangesNothing) {
  vcl::TForm form(nullptr);
  form.SetDesigning(true);
  auto* const designed = new TQELStartup(&form);
  designed->SetEntryName("QELTests.Startup");
  EXPECT_FALSE(designed->Install());
  EXPECT_NE(designed->LastError(), "");
  EXPECT_EQ(Entries(), "|");
}

}  // namespace
}  // namespace qel
