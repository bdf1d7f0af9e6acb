// Tree views: nodes with and without a window, selection, expanding, sorting, editing, form files.
#include "tests/support/texts.h"
#include "tests/vcl/standardform.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

class Trees : public TStandardForm {
 protected:
  /// a(a1 a2(a21)) b
  Trees() : Tree(Make<TTreeView>(10, 10)) {
    Tree->SetBounds(10, 10, 300, 300);
    TTreeNodes* items = Tree->Items();
    A = items->Add(nullptr, "a");
    items->AddChild(A, "a1");
    items->AddChild(items->AddChild(A, "a2"), "a21");
    B = items->Add(A, "b");
    const auto log = [this](const char* what) {
      return [this, what](TObject*, TTreeNode* node) {
        Heard += what + (node ? node->Text() : "-") + " ";
      };
    };
    const auto ask = [this](const char* what) {
      return [this, what](TObject*, TTreeNode* node, bool& may) {
        Heard += what + (node ? node->Text() : "-") + " ";
        may = Allow;
      };
    };
    Tree->OnChanging = ask("?sel:");
    Tree->OnChange = log("sel:");
    Tree->OnExpanding = ask("?exp:");
    Tree->OnExpanded = log("exp:");
    Tree->OnCollapsing = ask("?col:");
    Tree->OnCollapsed = log("col:");
    Tree->OnEditing = ask("?edit:");
    Tree->OnDeletion = log("del:");
  }
  ~Trees() override { Tree->OnDeletion = nullptr; }

  /// The nodes in order with their levels, as the library has them.
  std::string Nodes() const {
    std::string text;
    for (int i = 0; i < Tree->Items()->Count(); ++i) {
      TTreeNode* node = Tree->Items()->Item(i);
      EXPECT_EQ(node->AbsoluteIndex(), i);
      text += std::to_string(node->Level()) + node->Text() + " ";
    }
    return text;
  }
  /// The same as the window has them.
  std::string Items(HTREEITEM first = nullptr, int level = 0) const {
    std::string text;
    const auto next = [this](UINT which, HTREEITEM from) {
      return reinterpret_cast<HTREEITEM>(
          ::SendMessageW(Tree->Handle(), TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(from)));
    };
    if (!first && level == 0) first = next(TVGN_ROOT, nullptr);
    for (HTREEITEM each = first; each; each = next(TVGN_NEXT, each)) {
      wchar_t caption[100] = L"";
      TVITEMW item{};
      item.mask = TVIF_TEXT;
      item.hItem = each;
      item.pszText = caption;
      item.cchTextMax = 100;
      ::SendMessageW(Tree->Handle(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
      text += std::to_string(level) + ToUtf8(caption) + " ";
      if (HTREEITEM child = next(TVGN_CHILD, each)) text += Items(child, level + 1);
    }
    return text;
  }
  std::string Take() { return std::exchange(Heard, {}); }
  /// Press and release at once: the window waits for the release while it handles the press.
  void ClickNode(TTreeNode* node, DWORD down, DWORD up) {
    const TRect place = node->DisplayRect(true);
    testinput::MoveMouse(Tree->ClientToScreen({place.Left + 3, (place.Top + place.Bottom) / 2}));
    INPUT inputs[2]{};
    inputs[0].mi.dwFlags = down;
    inputs[1].mi.dwFlags = up;
    ::SendInput(2, inputs, sizeof(INPUT));
    testinput::Pump();
  }

  TRecreatable<TTreeView>* Tree;
  TTreeNode *A, *B;
  std::string Heard;
  bool Allow = true;
};

TEST_F(Trees, NodesAreTheSameWithAndWithoutAWindow) {
  for (bool window : {false, true}) {
    SCOPED_TRACE(window);
    if (window) ShowForm();
    Take();  // The window selects its first node when it gets the focus.
    TTreeNodes* items = Tree->Items();
    const std::string before = Nodes();
    TTreeNode* first = items->AddFirst(B, "first");
    TTreeNode* inserted = items->Insert(B, "vor b ☃");
    TTreeNode* child = items->AddChildFirst(A, "a0");
    EXPECT_EQ(Nodes(), "0first 0a 1a0 1a1 1a2 2a21 0vor b ☃ 0b ");
    child->MoveTo(B, naAddChild);
    A->Item(1)->MoveTo(first, naInsert);
    EXPECT_EQ(Nodes(), "0a2 1a21 0first 0a 1a1 0vor b ☃ 0b 1a0 ");
    EXPECT_TRUE(!window || Items() == Nodes()) << Items();
    EXPECT_THROW(B->MoveTo(child, naAddChild), ETreeViewError);
    EXPECT_THROW(items->Item(99), EListError);
    EXPECT_THROW(A->Item(1), EListError);
    items->GetFirstNode()->MoveTo(A, naAddChild);
    child->Delete();
    EXPECT_FALSE(B->HasChildren());
    first->Delete();
    inserted->Delete();
    EXPECT_EQ(Nodes(), before);
    EXPECT_TRUE(!window || Items() == before) << Items();
    EXPECT_EQ(Take(), "del:a0 del:first del:vor b ☃ ");
  }
  A->SetExpanded(true);
  B->SetSelected(true);
  Tree->RecreateWnd();
  EXPECT_EQ(Items(), "0a 1a1 1a2 2a21 0b ");
  EXPECT_TRUE(A->Expanded());
  EXPECT_FALSE(A->GetLastChild()->DisplayRect(false).Empty()) << "expanded in the new window too";
  EXPECT_EQ(Take(), "?exp:a exp:a ?sel:b sel:b ") << "the new window tells nothing";
  Tree->Items()->Clear();
  EXPECT_EQ(Take(), "del:a1 del:a21 del:a2 del:a del:b sel:- ");
  EXPECT_EQ(Items(), "");
}

TEST_F(Trees, SelectionAndExpansionAskFirst) {
  for (bool window : {false, true}) {
    SCOPED_TRACE(window);
    if (window) ShowForm();
    Tree->SetSelected(nullptr);
    Take();
    Allow = false;
    A->SetExpanded(true);
    B->SetSelected(true);
    EXPECT_EQ(Take(), "?exp:a ?sel:b ");
    EXPECT_FALSE(A->Expanded());
    EXPECT_EQ(Tree->Selected(), nullptr);
    Allow = true;
    A->GetLastChild()->GetFirstChild()->MakeVisible();
    EXPECT_TRUE(A->GetLastChild()->GetFirstChild()->IsVisible());
    A->GetLastChild()->GetFirstChild()->SetSelected(true);
    Take();
    A->SetExpanded(false);
    EXPECT_EQ(Tree->Selected(), A) << "what is hidden is not selected";
    B->SetExpanded(true);
    EXPECT_FALSE(B->Expanded()) << "without children";
    A->Collapse(true);
    Tree->SetSelected(B);
    Take();
    Tree->Items()->AddChild(B, "x");
    B->Item(0)->SetSelected(true);
    B->DeleteChildren();
    EXPECT_FALSE(B->Expanded());
    Tree->SetSelected(nullptr);
  }
}

TEST_F(Trees, TheUserSelectsExpandsAndEdits) {
  ShowForm();
  std::string edited;
  int clicks = 0;
  Tree->OnEdited = [&](TObject*, TTreeNode*, std::string& text) { edited = text, text += "!"; };
  Tree->OnClick = [&](TObject*) { ++clicks; };
  ClickNode(B, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
  EXPECT_TRUE(testinput::PumpUntil([&] { return clicks == 1; }));
  EXPECT_EQ(Tree->Selected(), B);
  EXPECT_NE(Take().find("?sel:b sel:b "), std::string::npos);
  Key(VK_UP);
  EXPECT_TRUE(testinput::PumpUntil([&] { return Tree->Selected() == A; }));
  Key(VK_RIGHT);
  EXPECT_TRUE(testinput::PumpUntil([&] { return A->Expanded(); }));
  EXPECT_EQ(Take(), "?sel:a sel:a ?exp:a exp:a ");
  EXPECT_EQ(Tree->GetNodeAt(A->DisplayRect(true).Left + 2, A->DisplayRect(true).Top + 2), A);
  EXPECT_TRUE(A->EditText());
  EXPECT_TRUE(Tree->IsEditing());
  Type("neu");
  Key(VK_RETURN);
  EXPECT_TRUE(testinput::PumpUntil([&] { return !Tree->IsEditing(); }));
  EXPECT_EQ(edited, "neu");
  EXPECT_EQ(A->Text(), "neu!");
  EXPECT_EQ(Items().substr(0, 6), "0neu! ");
  Tree->SetReadOnly(true);
  EXPECT_FALSE(A->EditText());
  Tree->SetRightClickSelect(true);
  auto* menu = new TPopupMenu(&Form);
  int popups = 0;
  menu->OnPopup = [&](TObject*) { ++popups, ::PostMessageW(Form.Handle(), WM_CANCELMODE, 0, 0); };
  Tree->SetPopupMenu(menu);
  ClickNode(B, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
  EXPECT_TRUE(testinput::PumpUntil([&] { return Tree->Selected() == B && popups > 0; }));
  testinput::Pump();
  EXPECT_EQ(popups, 1);
}

TEST_F(Trees, SortedTreesStaySorted) {
  Tree->SetSortType(stText);
  ShowForm();
  TTreeNodes* items = Tree->Items();
  items->Add(nullptr, "aa");
  EXPECT_EQ(Items(), "0a 1a1 1a2 2a21 0aa 0b ");
  B->SetText("A0");
  items->BeginUpdate();
  items->AddChild(A, "a11");
  items->EndUpdate();
  EXPECT_EQ(Items(), "0a 1a1 1a11 1a2 2a21 0A0 0aa ");
  EXPECT_EQ(Nodes(), Items());
  Tree->OnCompare = [](TObject*, TTreeNode* a, TTreeNode* b, int, int& order) {
    order = -a->Text().compare(b->Text());
  };
  Tree->AlphaSort();
  EXPECT_EQ(Items(), "0aa 0a 1a2 2a21 1a11 1a1 0A0 ");
}

TEST_F(Trees, NodesKnowTheirNeighbours) {
  TTreeNode *a1 = A->GetFirstChild(), *a2 = A->GetLastChild();
  EXPECT_EQ(A->GetNextChild(a1), a2);
  EXPECT_EQ(A->GetNextChild(a2), nullptr);
  EXPECT_EQ(A->GetPrevChild(a2), a1);
  EXPECT_EQ(A->GetPrevChild(nullptr), nullptr);
  EXPECT_EQ(A->GetNextVisible(), B);
  EXPECT_EQ(B->GetPrevVisible(), A);
  A->SetExpanded(true);
  EXPECT_EQ(A->GetNextVisible(), a1);
  EXPECT_EQ(B->GetPrevVisible(), a2);
  EXPECT_EQ(B->GetNextVisible(), nullptr);
  Tree->FullExpand();
  EXPECT_EQ(B->GetPrevVisible(), a2->GetFirstChild());
  Tree->FullCollapse();
  EXPECT_EQ(B->GetPrevVisible(), A);
  EXPECT_FALSE(a2->Expanded());
}

TEST_F(Trees, NodesAreAddedWithDataOnEitherSide) {
  TTreeNodes* items = Tree->Items();
  int data = 0;
  TTreeNode* const added[] = {items->AddObjectFirst(B, "first", &data),
                              items->AddChildObject(B, "b2", &data),
                              items->AddChildObjectFirst(B, "b1", &data)};
  EXPECT_EQ(Nodes(), "0first 0a 1a1 1a2 2a21 0b 1b1 1b2 ");
  for (const TTreeNode* each : added) EXPECT_EQ(each->Data(), &data);
}

TEST_F(Trees, WhatTheWindowIsAtIsSaidOfTheNodes) {
  EXPECT_EQ(A->ItemId(), nullptr);
  ShowForm();
  EXPECT_EQ(Tree->Items()->GetNode(A->ItemId()), A);
  B->SetFocused(true);
  EXPECT_EQ(Tree->Selected(), B);
  Tree->SetDropTarget(A);
  EXPECT_EQ(Tree->DropTarget(), A);
  Tree->SetDropTarget(nullptr);
  EXPECT_EQ(Tree->DropTarget(), nullptr);
  EXPECT_TRUE(B->EditText());
  EXPECT_TRUE(Tree->IsEditing());
  B->EndEdit(true);
  EXPECT_FALSE(Tree->IsEditing());
  bool deleting = false;
  Tree->OnDeletion = [&](TObject*, TTreeNode* node) { deleting = node->Deleting(); };
  EXPECT_FALSE(B->Deleting());
  B->Delete();
  EXPECT_TRUE(deleting);
}

TEST_F(Trees, HandlersThatDeleteHarmNothing) {
  ShowForm();
  Tree->OnExpanding = [](TObject*, TTreeNode* node, bool&) { node->Delete(); };
  A->SetExpanded(true);
  EXPECT_EQ(Items(), "0b ");
  TTreeNode* child = Tree->Items()->AddChild(B, "c");
  std::string refused;
  Tree->OnDeletion = [&](TObject*, TTreeNode* node) {
    try {
      if (node == child) B->Delete();
    } catch (const ETreeViewError& error) {
      refused = error.what();
    }
  };
  child->Delete();
  EXPECT_NE(refused.find("'c'"), std::string::npos);
  EXPECT_EQ(Items(), "0b ");
  Tree->SetSelected(nullptr);
  Tree->OnChange = [&](TObject*, TTreeNode*) { delete std::exchange(Tree, nullptr); };
  B->SetSelected(true);
  EXPECT_EQ(Tree, nullptr);
  Tree = Make<TTreeView>(0, 0);
}

TEST_F(Trees, FormFilesKeepNodesAndPicturesAreFollowed) {
  A->SetImageIndex(3);
  B->SetText("größer");
  auto* images = new TImageList(&Form);
  Tree->SetImages(images);
  ShowForm();
  const auto handle = [&] { return ::SendMessageW(Tree->Handle(), TVM_GETIMAGELIST, 0, 0); };
  images->SetSize(20, 20);
  EXPECT_EQ(handle(), reinterpret_cast<LRESULT>(images->Handle()));
  delete images;
  EXPECT_EQ(handle(), 0);
  EXPECT_EQ(Tree->Images(), nullptr);
  TTreeView copy(nullptr);
  ReadForm(FormText(Tree), &copy);
  EXPECT_EQ(copy.Items()->Count(), 5);
  EXPECT_EQ(copy.Items()->Item(4)->Text(), "größer");
  EXPECT_EQ(copy.Items()->Item(3)->Level(), 2);
  EXPECT_EQ(copy.Items()->Item(0)->ImageIndex(), 3);
}

}  // namespace
}  // namespace vcl
