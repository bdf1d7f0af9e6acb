// Forms that descend from forms, frames and data modules, made from the program's resources.
#include <gmock/gmock.h>

#include "tests/support/texts.h"
#include "vcl/vcl.h"

using namespace vcl;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

namespace {

std::vector<std::string> Heard;

class TStore : public TDataModule {
 public:
  explicit TStore(TComponent* owner) : TDataModule(owner) { LoadModule(); }
  static const TClass& Class() {
    static const TClass info =
        Describe<TStore, TDataModule>("TStore", "frames_test",
                                      {
                                          Field<&TStore::Menu>("Menu"),
                                          Method<&TStore::ModuleCreate>("ModuleCreate"),
                                          Method<&TStore::ModuleDestroy>("ModuleDestroy"),
                                      });
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  void ModuleCreate(TObject*) { Heard.push_back("store made with " + Menu->Name()); }
  void ModuleDestroy(TObject*) { Heard.push_back("store ends with " + Menu->Name()); }
  TPopupMenu* Menu = nullptr;
};

class TAddressFrame : public TFrame {
 public:
  explicit TAddressFrame(TComponent* owner) : TFrame(owner) { LoadFrame(); }
  static const TClass& Class() {
    static const TClass info =
        Describe<TAddressFrame, TFrame>("TAddressFrame", "frames_test",
                                        {
                                            Field<&TAddressFrame::Street>("Street"),
                                            Method<&TAddressFrame::StreetChange>("StreetChange"),
                                        });
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  void StreetChange(TObject*) { Heard.push_back(Name() + "'s own street: " + Street->Text()); }
  TEdit* Street = nullptr;
};

class TBaseForm : public TForm {
 public:
  explicit TBaseForm(TComponent* owner) : TForm(owner) {
    LoadForm();
    Heard.push_back("read " + Title->Caption());
  }
  static const TClass& Class() {
    static const TClass info =
        Describe<TBaseForm, TForm>("TBaseForm", "frames_test",
                                   {
                                       Field<&TBaseForm::Title>("Title"),
                                       Field<&TBaseForm::Ok>("Ok"),
                                       Method<&TBaseForm::FormCreate>("FormCreate"),
                                       Method<&TBaseForm::FormDestroy>("FormDestroy"),
                                       Method<&TBaseForm::OkClick>("OkClick"),
                                   });
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  void FormCreate(TObject*) {
    Heard.push_back(Concat("create ", Caption(), " seen ", Visible() ? "yes" : "no"));
  }
  void FormDestroy(TObject*) { Heard.push_back("destroy " + ClassName()); }
  void OkClick(TObject*) { Heard.push_back("ok"); }
  TLabel* Title = nullptr;
  TButton* Ok = nullptr;
};

class TOrderForm : public TBaseForm {
 public:
  explicit TOrderForm(TComponent* owner) : TBaseForm(InheritedBy<TOrderForm>(owner)) { LoadForm(); }
  static const TClass& Class() {
    static const TClass info = Describe<TOrderForm, TBaseForm>(
        "TOrderForm", "frames_test",
        {
            Field<&TOrderForm::Amount>("Amount"),
            Field<&TOrderForm::Cancel>("Cancel"),
            Field<&TOrderForm::Sender>("Sender"),
            Field<&TOrderForm::Receiver>("Receiver"),
            Field<&TOrderForm::First>("First"),
            Method<&TOrderForm::OrderClick>("OrderClick"),
            Method<&TOrderForm::SenderStreetChange>("SenderStreetChange"),
        });
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
  void OrderClick(TObject*) { Heard.push_back("order " + Amount->Text()); }
  void SenderStreetChange(TObject*) { Heard.push_back("the form's: " + Sender->Street->Text()); }
  TEdit* Amount = nullptr;
  TButton* Cancel = nullptr;  // A component of the ancestor's file.
  TAddressFrame* Sender = nullptr;
  TAddressFrame* Receiver = nullptr;
  TButton* First = nullptr;
};

namespace forgetful {

class TOrderForm : public TBaseForm {
 public:
  explicit TOrderForm(TComponent* owner) : TBaseForm(owner) { LoadForm(); }
  static const TClass& Class() {
    static const TClass info =
        Describe<TOrderForm, TBaseForm>("forgetful::TOrderForm", "frames_test", {});
    return info;
  }
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace forgetful

class InheritedForms : public testing::Test {
 protected:
  InheritedForms() { Heard.clear(); }
  ~InheritedForms() override { Owner.DestroyComponents(); }
  TComponent Owner{nullptr};
};

TEST_F(InheritedForms, AreReadOnTopOfTheirAncestorsAndCreatedOnce) {
  new TStore(&Owner);
  auto* form = new TOrderForm(&Owner);
  EXPECT_THAT(Heard, ElementsAre("store made with Menu", "read title",
                                 // The frame is whole when the form's file changes it.
                                 "Sender's own street: Sender's street", "create order seen no"));
  EXPECT_TRUE(form->Visible());
  EXPECT_EQ(form->Name(), "OrderForm");
  EXPECT_EQ(form->ClientRect(), Rect(0, 0, 300, 90));
  EXPECT_EQ(form->Title->Caption(), "title");
  EXPECT_EQ(form->Title->Left(), 20);
  EXPECT_EQ(form->Cancel->Caption(), "Cancel");
  Heard.clear();
  form->Ok->Click();
  form->Cancel->Click();
  EXPECT_THAT(Heard, ElementsAre("order 5"));
  form->Free();
  EXPECT_EQ(Heard.back(), "destroy TOrderForm");
}

TEST_F(InheritedForms, StandWhereTheirPlacesSay) {
  new TStore(&Owner);
  const TOrderForm form(&Owner);
  std::vector<std::string> names;
  for (int i = 0; i < form.ControlCount(); ++i) names.push_back(form.Controls(i)->Name());
  EXPECT_THAT(names, ElementsAre("Title", "Amount", "Ok", "Cancel", "Sender", "Receiver", "First"));
}

TEST_F(InheritedForms, TheAncestorAloneIsAFormOfItsOwn) {
  const TBaseForm form(&Owner);
  EXPECT_THAT(Heard, ElementsAre("create base seen no", "read title"));
  EXPECT_TRUE(form.Visible());
}

TEST_F(InheritedForms, SayWhatTheConstructorForgot) {
  EXPECT_THAT([&] { forgetful::TOrderForm form(&Owner); },
              ThrowsMessage<EInvalidOperation>(
                  "An ancestor of TOrderForm took it for complete: the constructor must give it "
                  "InheritedBy<TOrderForm>(owner)"));
}

TEST_F(InheritedForms, AreWrittenAsTheDifference) {
  new TStore(&Owner);
  TBaseForm base(&Owner);
  TOrderForm form(&Owner);
  TStringStream text;
  WriteComponentText(text, &form, TFormAncestry{&base, {}});
  EXPECT_THAT(text.DataString(), HasSubstr("inherited OrderForm: TOrderForm\n  Caption = 'order'\n"
                                           "  ClientWidth = 300\n"));
  EXPECT_THAT(text.DataString(), HasSubstr("  object Amount: TEdit [1]\n"));
  EXPECT_THAT(text.DataString(), HasSubstr("  inherited Cancel: TButton\n    OnClick = nil\n"));
  EXPECT_THAT(text.DataString(), HasSubstr("    inherited Street: TEdit\n"
                                           "      Text = 'Sender''s street'\n"
                                           "      OnChange = SenderStreetChange\n    end\n"));
  EXPECT_THAT(text.DataString(), HasSubstr("  inline Receiver: TAddressFrame\n"));
  EXPECT_THAT(text.DataString(), HasSubstr("    PopupMenu = Store.Menu\n"));
}

TEST_F(InheritedForms, FramesHaveTheirOwnNamesAndHandlers) {
  new TStore(&Owner);
  const TOrderForm form(&Owner);
  EXPECT_EQ(form.Sender->Street->Text(), "Sender's street");
  EXPECT_EQ(form.Receiver->Street->Text(), "street");
  EXPECT_EQ(form.Sender->Left(), 190);
  EXPECT_EQ(form.Sender->Width(), 100);
  EXPECT_NE(form.Sender->FindComponent("Menu"), nullptr);
  EXPECT_EQ(form.FindComponent("Street"), nullptr);
  Heard.clear();
  form.Sender->Street->SetText("a");
  form.Receiver->Street->SetText("b");
  EXPECT_THAT(Heard, ElementsAre("the form's: a", "Receiver's own street: b"));
}

TEST_F(InheritedForms, ReferToADataModuleThatEndsWhole) {
  auto* store = new TStore(&Owner);
  EXPECT_EQ(store->DesignOffset(), (TPoint{30, 40}));
  EXPECT_EQ(store->DesignSize(), (TSize{300, 200}));
  const TOrderForm form(&Owner);
  EXPECT_EQ(form.First->PopupMenu(), store->Menu);
  const std::string text = FormText(store);
  EXPECT_THAT(text, HasSubstr("  Width = 300\n  Height = 200\n  object Menu: TPopupMenu\n"));
  Heard.clear();
  store->Free();
  EXPECT_THAT(Heard, ElementsAre("store ends with Menu"));
  EXPECT_EQ(form.First->PopupMenu(), nullptr);
}

TEST_F(InheritedForms, TheApplicationFreesItsModulesBehindItsForms) {
  Application()->CreateForm<TStore>();
  EXPECT_EQ(Application()->MainForm(), nullptr);
  new TOrderForm(Application());
  Heard.clear();
  Application()->Run();  // Without a main form it only ends what there is.
  EXPECT_EQ(Heard.front(), "destroy TOrderForm");
  EXPECT_EQ(Heard.back(), "store ends with Menu");
  EXPECT_EQ(Application()->FindComponent("Store"), nullptr);
}

}  // namespace
