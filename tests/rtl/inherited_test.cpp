// Form files of descendants and frames: what they add to their ancestors' files, read, written and
// damaged.
#include <gmock/gmock.h>

#include "tests/rtl/samples.h"

using namespace vcl;
using namespace samples;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

/// A part whose own file puts two others inside it.
class TPartFrame : public TPart {
 public:
  explicit TPartFrame(TComponent* owner) : TPart(owner) {
    Include(csInline);
    ReadForm(File, this);
  }
  static const TClass& Class() {
    static const TClass info = Describe<TPartFrame, TPart>("TPartFrame", "samples", {});
    return info;
  }
  const TClass& ClassType() const override { return Class(); }

  static constexpr const char* File = R"(object PartFrame: TPartFrame
  Caption = 'as made'
  object Inner1: TPart
    Count = 1
    Link = Inner2
    Lines.Strings = ('one' 'two')
    Items = <item Title = 'first' Link = Inner2 end>
  end
  object Inner2: TPart
  end
end
)";
};

constexpr const char* Base = R"(object Base: TSampleForm
  Caption = 'base'
  OnClick = PartClick
  object Part1: TPart
    Count = 1
    Ratio = 2.5
    Link = Part2
    Style.Size = 20
    Style.Data = {AABB}
    Lines.Strings = ('one')
    Items = <item Title = 'first' Link = Part2 end>
    OnClick = PartClick
    object Inside1: TPart
    end
    object Inside2: TPart
    end
  end
  object Part2: TPart
    AnyLink = Owner
  end
  object Other1: TOther
    Left = 8
  end
end
)";

class InheritedForm : public testing::Test, TSampleTest {
 protected:
  InheritedForm() { RegisterClass(TPartFrame::Class()); }
  ~InheritedForm() override { UnRegisterClass(TPartFrame::Class()); }

  static std::unique_ptr<TSampleForm> Made(std::initializer_list<const char*> files) {
    auto form = std::make_unique<TSampleForm>(nullptr);
    for (const char* each : files) ReadForm(each, form.get());
    return form;
  }
  static TPart& PartOf(TComponent& form, const char* name) {
    return dynamic_cast<TPart&>(*form.FindComponent(name));
  }
  /// What a descendant's file says after a change; read on top of the ancestor it must give the
  /// same form, and so must its binary form.
  template <class Change>
  static std::string Difference(const Change& change) {
    const auto ancestor = Made({Base});
    const auto form = Made({Base});
    change(*form);
    return Written(*form, *ancestor);
  }
  static std::string Written(TSampleForm& form, TSampleForm& ancestor) {
    TStringStream text, binary;
    WriteComponentText(text, &form, TFormAncestry{&ancestor, {}});
    WriteComponentBinary(binary, &form, TFormAncestry{&ancestor, {}});
    EXPECT_EQ(BinaryToText(binary.DataString()), text.DataString());
    EXPECT_EQ(TextToBinary(text.DataString()), binary.DataString());
    const auto again = Made({Base, text.DataString().c_str()});
    EXPECT_EQ(FormText(again.get()), FormText(&form));
    return text.DataString();
  }
};

TEST_F(InheritedForm, HoldsNothingButWhatDiffers) {
  EXPECT_EQ(Difference([](TSampleForm&) {}), "inherited Base: TSampleForm\nend\n");
  const auto changed = Difference([](TSampleForm& form) {
    form.SetName("Descendant");
    TPart& part = PartOf(form, "Part1");
    part.SetCount(0);  // The class's default, which the ancestor is not at.
    part.Style()->SetSize(21);
    part.SetLink(nullptr);
    part.OnClick.Clear();
    PartOf(form, "Inside2").SetCaption("changed");
    form.FindComponent("Other1")->SetDesignPosition(0, 4);
  });
  EXPECT_EQ(changed, R"(inherited Descendant: TSampleForm
  inherited Part1: TPart
    Count = 0
    Link = nil
    Style.Size = 21
    OnClick = nil
    inherited Inside2: TPart
      Caption = 'changed'
    end
  end
  inherited Other1: TOther
    Left = 0
    Top = 4
  end
end
)");
}

TEST_F(InheritedForm, HoldsWhatWasEmptiedAndWholeCollections) {
  EXPECT_EQ(Difference([](TSampleForm& form) {
              TPart& part = PartOf(form, "Part1");
              part.Lines()->Clear();
              part.Style()->Blob.clear();
              part.Items()->Clear();
            }),
            R"(inherited Base: TSampleForm
  inherited Part1: TPart
    Style.Data = {}
    Lines.Strings = ()
    Items = <>
  end
end
)");
  EXPECT_EQ(Difference([](TSampleForm& form) {
              auto* items = PartOf(form, "Part1").Items();
              static_cast<TPartItem*>(items->Items(0))->SetLink(&form);
            }),
            R"(inherited Base: TSampleForm
  inherited Part1: TPart
    Items = <
      item
        Title = 'first'
        Link = Owner
        Style.Color = clBlack
      end>
  end
end
)");
}

TEST_F(InheritedForm, HoldsNewComponentsAndPlaces) {
  const auto add = [](TComponent& form, TComponent& parent, const char* name, int order) {
    auto* part = new TPart(&form);
    part->SetName(name);
    part->SetColor(clBtnFace);
    part->SetParentComponent(&parent);
    if (order >= 0) parent.SetChildOrder(part, order);
  };
  EXPECT_EQ(Difference([&](TSampleForm& form) {
              add(form, form, "First", 0);
              add(form, PartOf(form, "Part1"), "Last", -1);
              form.SetChildOrder(&PartOf(form, "Part2"), 1);
            }),
            R"(inherited Base: TSampleForm
  object First: TPart [0]
    Style.Color = clBlack
  end
  inherited Part2: TPart [1]
  end
  inherited Part1: TPart
    object Last: TPart
      Style.Color = clBlack
    end
  end
end
)");
  // What moves into another component is still the ancestor's.
  EXPECT_THAT(
      Difference([](TSampleForm& form) {
        PartOf(form, "Inside1").SetParentComponent(&PartOf(form, "Part2"));
      }),
      HasSubstr("  inherited Part2: TPart\n    inherited Inside1: TPart\n    end\n  end\n"));
}

TEST_F(InheritedForm, BindsAndClearsEventsOfItsAncestor) {
  const auto form = Made({Base, R"(inherited D: TSampleForm OnClick = nil
    inherited Part2: TPart OnClick = PartClick end end)"});
  EXPECT_EQ(form->Name(), "D");
  EXPECT_FALSE(form->OnClick);
  PartOf(*form, "Part2").OnClick(form.get());
  EXPECT_EQ(form->Clicked, form.get());
}

TEST_F(InheritedForm, DescendsInSeveralSteps) {
  const char* const middle = "inherited M: TSampleForm inherited Part1: TPart Count = 5 end end";
  const char* const last = "inherited L: TSampleForm inherited Part1: TPart Ratio = 7 end end";
  const auto form = Made({Base, middle, last});
  EXPECT_EQ(PartOf(*form, "Part1").Count(), 5);
  EXPECT_EQ(PartOf(*form, "Part1").Ratio(), 7);
  EXPECT_THAT(Written(*form, *Made({Base})), HasSubstr("    Count = 5\n    Ratio = 7.0\n"));
}

/// A form with a frame, and what the frame's file leaves to say.
constexpr const char* WithFrame = R"(object Form1: TSampleForm
  inline Frame1: TPartFrame
    Ratio = 2.0
    inherited Inner2: TPart
      Link = Part1
      OnClick = PartClick
    end
    object Extra: TPart
      Style.Color = clBlack
    end
  end
  object Part1: TPart
    Link = Frame1.Inner1
    AnyLink = Frame1
    Style.Color = clBlack
  end
  Style.Color = clBlack
end
)";

TEST_F(InheritedForm, HoldsOfAFrameWhatDiffersFromItsOwnFile) {
  std::string text = WithFrame;
  // The form's own properties stand in front.
  text.erase(text.rfind("  Style.Color"), std::string("  Style.Color = clBlack\n").size());
  text.insert(text.find("  inline"), "  Style.Color = clBlack\n");
  const auto form = Made({text.c_str()});
  TPart& frame = PartOf(*form, "Frame1");
  EXPECT_TRUE(frame.Inline());
  EXPECT_EQ(frame.Caption(), "as made");
  EXPECT_EQ(form->FindComponent("Inner1"), nullptr) << "it is the frame's";
  EXPECT_EQ(PartOf(frame, "Inner1").Link(), frame.FindComponent("Inner2"));
  EXPECT_EQ(PartOf(frame, "Inner2").Link(), form->Part1);
  EXPECT_EQ(PartOf(frame, "Extra").Owner(), &frame);
  EXPECT_EQ(form->Part1->Link(), frame.FindComponent("Inner1"));
  PartOf(frame, "Inner2").OnClick(&frame);
  EXPECT_EQ(form->Clicked, &frame) << "the handler is the form's";
  EXPECT_EQ(FormText(form.get()), text);
  EXPECT_EQ(BinaryToText(TextToBinary(text)), text);
}

TEST_F(InheritedForm, KnowsAFramesComponentFromTheFormsOfThatName) {
  const auto form = Made({R"(object F: TSampleForm object Inner2: TPart end
    inline A: TPartFrame inherited Inner1: TPart Link = Inner2 end end
    inline B: TPartFrame end end)"});
  const std::string text = FormText(form.get());
  EXPECT_EQ(PartOf(PartOf(*form, "A"), "Inner1").Link(), form->FindComponent("Inner2"));
  EXPECT_THAT(text, HasSubstr("    inherited Inner1: TPart\n      Link = Inner2\n    end\n"));
  EXPECT_THAT(text, HasSubstr("  inline B: TPartFrame\n  end\n"));
}

TEST_F(InheritedForm, InheritsFrames) {
  const char* const base = "object F: TSampleForm inline A: TPartFrame Ratio = 3 end end";
  const auto ancestor = Made({base});
  const auto form = Made({base});
  TStringStream text;
  PartOf(PartOf(*form, "A"), "Inner1").SetCount(9);
  WriteComponentText(text, form.get(), TFormAncestry{ancestor.get(), {}});
  EXPECT_EQ(text.DataString(), R"(inherited F: TSampleForm
  inherited A: TPartFrame
    inherited Inner1: TPart
      Count = 9
    end
  end
end
)");
  const auto again = Made({base, text.DataString().c_str()});
  EXPECT_EQ(FormText(again.get()), FormText(form.get()));
}

TEST_F(InheritedForm, CopiesFramesWithWhatDiffers) {
  const auto form = Made({"object F: TSampleForm inline A: TPartFrame Ratio = 3 end end"});
  TStringStream copied;
  WriteComponentsText(copied, {form->FindComponent("A")}, form.get());
  EXPECT_EQ(copied.DataString(), "inline A: TPartFrame\n  Ratio = 3.0\nend\n");
  copied.SetPosition(0);
  std::vector<std::string> names;
  ReadComponentsInto(copied, form.get(), form.get(),
                     [&](TComponent* made) { names.push_back(made->Name()); });
  EXPECT_THAT(names, ElementsAre("PartFrame1"));
  EXPECT_NE(PartOf(*form, "PartFrame1").FindComponent("Inner1"), nullptr);
}

TEST_F(InheritedForm, DamageIsToldWithItsLineAndLeavesNothing) {
  const std::pair<const char*, const char*> cases[] = {
      {"inherited Nobody: TPart end", "Line 2: Nobody: there is no inherited component Nobody"},
      {"inherited Inner1: TPart end", "Line 2: Inner1: there is no inherited component Inner1"},
      {"inline X: TPart end", "Line 2: X: TPart is no frame"},
      {"inline X: TPartFrame inherited Nobody: TPart end end", "no inherited component Nobody"},
      {"inline X: TPartFrame inherited Part2: TPart end end", "no inherited component Part2"},
      {"inline X: TPartFrame object Inner1: TPart end end", "named Inner1 already exists"},
      {"inline X: TPartFrame Link = Inner1 end", "there is no component Inner1"},
      {"inline X: TPartFrame\nCount = -1 end", "Line 3: X.Count: A count is never negative"},
      {"inline: TPartFrame end", "a component's name is expected"},
      {"inline = 5", "a component's name is expected"},
  };
  for (const auto& [line, message] : cases) {
    const auto form = Made({Base});
    const std::string before = FormText(form.get());
    std::string told;
    try {
      ReadForm(Concat("inherited D: TSampleForm\n", line, "\nend"), form.get());
    } catch (const Exception& error) {
      told = error.what();
    }
    EXPECT_THAT(told, HasSubstr(message));
    EXPECT_EQ(FormText(form.get()), before) << line;
  }
  EXPECT_THAT([] { ReadForm("inline F: TPartFrame end"); },
              testing::ThrowsMessage<EReadError>(HasSubstr("it can't be inline")));
  // A heading's byte that says both, and flags that nobody knows.
  for (const char flags : {'\xF5', '\xF8'}) {
    std::string binary = TextToBinary("inherited F: TSampleForm end");
    binary[4] = flags;
    EXPECT_THAT([&] { BinaryToText(binary); },
                testing::ThrowsMessage<EReadError>(HasSubstr(Concat(
                    "Offset 4: unknown flags of a component: ", std::to_string(flags & 0xF)))));
  }
}

/// A designer's keeper, which has no class of the program's.
class TKeeper : public TReaderKeeper {
 public:
  void Report(const std::string& message) override { Messages.push_back(message); }
  TComponent* MakeStandIn(TComponent* owner, bool) override { return new TPart(owner); }
  TComponent* MakeFrame(const std::string& className, TComponent* owner) override {
    if (className == "TMissing") throw EFOpenError("no file of TMissing");
    return new TPartFrame(owner);
  }
  std::vector<std::string> Messages;
};

TEST_F(InheritedForm, ADesignerLosesNothing) {
  const std::string base = R"(object Base: TBase
  Unknown = 1
  Style.Color = clBlack
  inline Good: TGoodFrame
    inherited Inner1: TPart
      Count = 3
    end
  end
  inline Bad: TMissing
    Count = 2
    Style.Color = clBlack
    inherited Lost: TPart
      Count = 4
    end
  end
end
)";
  const std::string descendant = R"(inherited Sub: TSub
  Unknown = 2
  inherited Good: TGoodFrame
    inherited Inner2: TPart
      Shape = shStar
    end
  end
  inherited Gone: TPart
    Caption = 'kept'
  end
end
)";
  TKeeper keeper;
  const auto read = [&](TSampleForm& form, const std::string& text) {
    TStringStream stream(text);
    ReadComponentFile(stream, &form, {}, &keeper);
  };
  TSampleForm ancestor(nullptr), form(nullptr);
  read(ancestor, base);
  EXPECT_THAT(keeper.Messages,
              ElementsAre(HasSubstr("Base.Unknown"), HasSubstr("no file of TMissing")));
  const TFormAncestry frames{
      nullptr, [](const TComponent&) { return std::make_unique<TPartFrame>(nullptr); }};
  TStringStream again;
  WriteComponentText(again, &ancestor, frames);
  EXPECT_EQ(again.DataString(), base);

  keeper.Messages.clear();
  read(form, base);
  read(form, descendant);
  EXPECT_THAT(keeper.Messages.back(), HasSubstr("there is no inherited component Gone"));
  TStringStream difference;
  WriteComponentText(difference, &form, TFormAncestry{&ancestor, frames.MakeFrame});
  EXPECT_EQ(difference.DataString(), descendant);
}

}  // namespace
