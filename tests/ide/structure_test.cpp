// The structure tree and the window of a collection's items.
#include "ide/structure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

#include "ide/structurecollection.h"
#include "tests/support/plaindesigner.h"
#include "tests/vcl/standardform.h"
#include "vcl/rtl/win32.h"
#include "vcl/vcl.h"

namespace ide {
namespace {

using testing::ElementsAre;

/// Tells the parts what the designer application would.
class TTellingDesigner : public TPlainDesigner {
 public:
  void Modified() override {
    TPlainDesigner::Modified();
    Tree->Refresh();
    Items->Refresh();
  }
  void SetSelection(const std::vector<vcl::TPersistent*>& selection) override {
    TPlainDesigner::SetSelection(selection);
    Tree->SelectionChanged();
    Items->SelectionChanged();
  }

  TStructureTree* Tree = nullptr;
  TCollectionWindow* Items = nullptr;
};

class Structure : public vcl::TStandardForm {
 protected:
  Structure() {
    Tree = new TStructureTree(&Form);
    Tree->SetBounds(0, 0, 240, 380);
    Tree->SetParent(&Form);
    Designer.Tree = Tree;
    Designer.Items = &Items;
    vcl::TForm& root = Designer.Form;
    root.SetName("Form1");
    Panel = Add<vcl::TPanel>("Panel1", root);
    Button = Add<vcl::TButton>("Button1", root);
    Button->SetBounds(150, 90, 75, 25);
    Bar = Add<vcl::TStatusBar>("Bar1", *Panel);
    Bar->Panels()->Add()->SetText("first");
    Bar->Panels()->Add()->SetText("second");
    (new vcl::TTimer(&root))->SetName("Timer1");
    Tree->SetDesigner(&Designer);
    ShowForm();
  }
  ~Structure() override {
    Tree->SetDesigner(nullptr);
    Items.SetDesigner(nullptr);
  }

  template <class T>
  T* Add(const char* name, vcl::TWinControl& parent) {
    T* made = new T(&Designer.Form);
    made->SetParent(&parent);
    made->SetName(name);
    return made;
  }
  /// The lines as they are indented.
  std::vector<std::string> Lines() {
    std::vector<std::string> lines;
    for (const TStructureLine& line : StructureOf(Designer.Form)) {
      lines.push_back(std::string(static_cast<std::size_t>(line.Depth), ' ') + line.Text);
    }
    return lines;
  }
  vcl::TPoint At(const char* path) {
    const vcl::TRect rect = Tree->NodeOf(path)->DisplayRect(true);
    return Tree->ClientToScreen({rect.Left + 8, (rect.Top + rect.Bottom) / 2});
  }

  /// The window watches the mouse itself while a button is down: the events come from elsewhere.
  static void Mouse(DWORD flags) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    ::SendInput(1, &input, sizeof input);
    ::Sleep(50);
  }
  static void Drag(vcl::TPoint from, vcl::TPoint to) {
    testinput::MoveMouse(from);
    std::thread mouse([=] {
      constexpr int steps = 8;
      Mouse(MOUSEEVENTF_LEFTDOWN);
      for (int i = 1; i <= steps; ++i) {
        ::SetCursorPos(from.X + (to.X - from.X) * i / steps, from.Y + (to.Y - from.Y) * i / steps);
        ::Sleep(40);
      }
      Mouse(MOUSEEVENTF_LEFTUP);
    });
    testinput::PumpFor(800);
    mouse.join();
  }

  TCollectionWindow Items{nullptr};
  TTellingDesigner Designer;
  TStructureTree* Tree = nullptr;
  vcl::TPanel* Panel = nullptr;
  vcl::TButton* Button = nullptr;
  vcl::TStatusBar* Bar = nullptr;
};

TEST_F(Structure, ShowsWhatStandsInWhat) {
  EXPECT_THAT(Lines(), ElementsAre("Form1: TForm", " Panel1: TPanel", "  Bar1: TStatusBar",
                                   "   Panels", "    0 - first", "    1 - second",
                                   " Button1: TButton", " Timer1: TTimer"));
  Button->SetName("Other");
  delete Panel;
  Tree->Refresh();
  ASSERT_NE(Tree->NodeOf("Other"), nullptr);
  EXPECT_EQ(Tree->NodeOf("Other")->Text(), "Other: TButton");
  EXPECT_EQ(Tree->Items()->Count(), 3);
}

TEST_F(Structure, SelectsInTheDesignerAndBack) {
  Drag(At("Button1"), At("Button1"));
  EXPECT_THAT(Designer.Selected, ElementsAre(Button));
  Designer.SetSelection({Bar->Panels()->Items(1)});
  EXPECT_EQ(Tree->Selected(), Tree->NodeOf("Bar1.Panels[1]"));
  EXPECT_TRUE(Tree->NodeOf("Bar1.Panels")->Expanded()) << "the node is in sight";
  EXPECT_THAT(Designer.Selected, ElementsAre(Bar->Panels()->Items(1)));
}

TEST_F(Structure, DraggedControlsGoIntoOtherContainers) {
  Panel->SetBounds(0, 0, 120, 60);
  Drag(At("Button1"), At("Panel1"));
  EXPECT_EQ(Button->Parent(), Panel);
  EXPECT_LE(Button->Left() + Button->Width(), Panel->ClientWidth());
  EXPECT_EQ(Designer.Modifications, 1);
  bool accept = true;
  Tree->SetSelected(Tree->NodeOf("Panel1"));
  const vcl::TPoint bar = Tree->ScreenToClient(At("Button1"));
  Tree->DragOver(Tree, bar.X, bar.Y, vcl::dsDragMove, accept);
  EXPECT_FALSE(accept) << "a button holds nothing";
}

TEST_F(Structure, ItemsAreAddedOrderedAndDeleted) {
  vcl::TStatusPanels& panels = *Bar->Panels();
  Items.ShowItems(Designer, panels);
  testinput::Pump();
  const auto texts = [&] {
    std::vector<std::string> all;
    for (int i = 0; i < panels.Count(); ++i) all.push_back(panels.Items(i)->Text());
    return all;
  };
  Items.AddItem();
  ASSERT_EQ(panels.Count(), 3);
  EXPECT_THAT(Designer.Selected, ElementsAre(panels.Items(2)));
  panels.Items(2)->SetText("third");
  Designer.Modified();
  EXPECT_EQ(Items.List().Items()->Strings(2), "2 - third");
  Items.MoveItem(-1);
  EXPECT_THAT(texts(), ElementsAre("first", "third", "second"));
  Items.MoveItem(-1);
  Items.MoveItem(-1);  // Is the first already.
  EXPECT_THAT(texts(), ElementsAre("third", "first", "second"));
  Designer.SetSelection({panels.Items(0), panels.Items(2)});
  Items.List().SetFocus();
  Key(VK_DELETE);
  EXPECT_THAT(texts(), ElementsAre("first"));
  EXPECT_THAT(Designer.Selected, ElementsAre(panels.Items(0)));
  Key(VK_INSERT);
  EXPECT_EQ(panels.Count(), 2);
}

}  // namespace
}  // namespace ide
