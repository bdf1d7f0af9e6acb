// The settings of a dialog's button, and the button that follows them.
#include <gmock/gmock.h>

#include "qel/qel.h"
#include "vcl/stdctrls/buttons.h"
#include "vcl/vcl.h"

namespace {

template <class T>
class ButtonDetails : public ::testing::Test {};
using TFollowers = ::testing::Types<vcl::TBitBtn, vcl::TSpeedButton>;
TYPED_TEST_SUITE(ButtonDetails, TFollowers);

vcl::TForm& Form() {
  static vcl::TForm form(nullptr);
  return form;
}

TYPED_TEST(ButtonDetails, AreFollowedByTheirButton) {
  auto button = std::make_unique<TypeParam>(nullptr);
  button->SetParent(&Form());
  button->SetShowHint(true);
  qel::TQELButtonDetails details(button.get());
  EXPECT_TRUE(button->ShowHint());  // The beginning changes nothing.
  const std::int64_t no = false, yes = true;
  const std::pair<const char*, vcl::TValue> settings[] = {{"ShowHint", no},     {"ShowHint", yes},
                                                          {"Caption", "Grüße"}, {"Hint", "why"},
                                                          {"Enabled", no},      {"Visible", no}};
  for (const auto& [name, value] : settings) {
    details.ClassType().FindPublished(name)->Set(details, value);
    EXPECT_EQ(button->ClassType().FindPublished(name)->Get(*button), value) << name;
  }
  const vcl::TBitmap glyph(24, 12);
  details.Setglyph(&glyph);
  EXPECT_EQ(button->Glyph()->Width(), 24);
  EXPECT_EQ(button->NumGlyphs(), 2);
  details.Glyph()->SetSize(5, 7);
  EXPECT_EQ(button->Glyph()->Height(), 7);
  details.Setglyph(nullptr);
  EXPECT_TRUE(button->Glyph()->Empty());

  button.reset();
  details.SetCaption("kept");
  details.Setglyph(&glyph);
  EXPECT_EQ(details.Caption(), "kept");
  EXPECT_EQ(details.Glyph()->Width(), 24);
}

TEST(ButtonDetailsAlone, AnotherControlStaysAsItIs) {
  vcl::TButton button(nullptr);
  button.SetParent(&Form());
  qel::TQELButtonDetails details(&button);
  details.SetCaption("x");
  details.SetEnabled(false);
  EXPECT_EQ(button.Caption(), "");
  EXPECT_TRUE(button.Enabled());
  EXPECT_EQ(details.Caption(), "x");
}

TEST(ButtonDetailsAlone, AreFreedByWhoHandlesTheChange) {
  vcl::TForm form(nullptr);
  auto* button = new vcl::TBitBtn(&form);
  auto* other = new vcl::TBitBtn(&form);
  for (auto* each : {button, other}) each->SetParent(&form);
  form.Show();
  button->SetFocus();
  auto details = std::make_unique<qel::TQELButtonDetails>(button);
  int exits = 0;
  std::vector<std::vector<char>> others;
  button->OnExit = [&](vcl::TObject*) {
    ++exits;
    details.reset();
    delete button;
    for (std::size_t size = 4; size < 256; size += 4)  // Over what they have left in memory.
      for (int i = 0; i < 4; ++i) others.emplace_back(size, '\xA5');
  };
  details->SetEnabled(false);
  EXPECT_EQ(exits, 1);
  EXPECT_EQ(details, nullptr);
}

}  // namespace
