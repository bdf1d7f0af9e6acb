// The menu that the package's add-in brings.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/designintf/environment.h"
#include "host/designintf/package.h"
#include "host/rtl/exceptions.h"
#include "host/vcl/vcl.h"

namespace vcl {
namespace {

using testing::ElementsAre;

class TPlainEnvironment : public TEnvironment {
 public:
  TMainMenu& MainMenu() override { return Menu; }
  TDesigner* ActiveDesigner() override { return nullptr; }
  std::string FileName() const override { return {}; }
  void SaveFile() override {}
  std::vector<std::string> RememberedFiles() const override { return {}; }
  void ForgetFile(const std::string&) override {}
  TMainMenu Menu{nullptr};
};

std::vector<std::string> Captions(const TMenuItem& menu) {
  std::vector<std::string> captions;
  for (int i = 0; i < menu.Count(); ++i) captions.push_back(menu.Items(i)->Caption());
  return captions;
}

TEST(ToolsMenu, ComesAndGoesWithTheAddIn) {
  const TPackage package("qel.dll");
  TPlainEnvironment environment;
  ASSERT_EQ(RegisteredExperts().size(), 1u);
  auto expert = RegisteredExperts()[0].Make(environment);
  ASSERT_EQ(Captions(*environment.Menu.Items()), std::vector<std::string>{"QEL &Tools"});
  const TMenuItem& menu = *environment.Menu.Items()->Items(0);
  EXPECT_THAT(Captions(menu),
              ElementsAre("Activate Screensaver", "Non-Visual Components", "Paste Comments...",
                          "Auto Save Files", "Clean Project Paths", "Search && Replace Text",
                          "Repair Component Names", "Ini File Explorer", "View Clipboard Contents",
                          "View Ascii Table", "Generate Table Source", "My Personal Files",
                          "My Personal Links", "Properties...", "Contact QEL", "About QEL"));
  for (int i = 0; i < menu.Count(); ++i) {
    const TMenuItem& item = *menu.Items(i);
    EXPECT_TRUE(item.Enabled() || !item.Hint().empty()) << item.Caption() << " says no reason";
    EXPECT_TRUE(!item.Enabled() || item.OnClick || item.Count() > 0) << item.Caption();
  }
  EXPECT_THAT(Captions(*menu.Items(11)), ElementsAre("[ EMPTY ]"));
  EXPECT_THAT(Captions(*menu.Items(14)), ElementsAre("Home page", "Send e-mail", "Pager"));
  EXPECT_THROW(menu.Items(1)->Click(), EInvalidOperation) << "no form is open";
  expert.reset();
  EXPECT_EQ(environment.Menu.Items()->Count(), 0);
}

}  // namespace
}  // namespace vcl
