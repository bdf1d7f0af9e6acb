// The C++ units that the designer writes, as texts.
#include "ide/unitwriter.h"

#include <cxxabi.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <regex>
#include <set>

#include "ide/cpptext.h"
#include "ide/palette.h"
#include "vcl/designintf/package.h"
#include "vcl/designintf/registration.h"
#include "vcl/rtl/collection.h"
#include "vcl/rtl/text.h"
#include "vcl/vcl.h"

namespace ide {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using vcl::Concat;

TUnitField Button(const char* name) {
  return {name, {"qel::TQELButton", "TControl"}, "qel/controls/Qeltbutton.h"};
}
TUnitHandler Click(const char* name) { return {name, "TNotifyEvent", "vcl::TObject* sender"}; }

TUnitForm Form(std::vector<TUnitField> fields, std::vector<TUnitHandler> handlers) {
  return {"TMain", "vcl::TForm", "", "main", std::move(fields), std::move(handlers), false};
}

constexpr const char* Header = R"(// By hand.
#pragma once
#include "vcl/vcl.h"
class TMain;  // Not this one.
namespace app {
class TMain : public vcl::TForm {
 public:
  explicit TMain(vcl::TComponent* owner) : TForm(owner), FList{1, 2} { LoadForm(); }
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  vcl::TEdit* Find();  /* { */

 private:
  vcl::TControl* One = nullptr;  // The first.
  void OneClick(vcl::TObject*) { Mine(); }

  void Mine();
  void Calls();
  void Empty(vcl::TObject* sender);
  std::vector<int> FList;
};
}  // namespace app
)";
constexpr const char* Source = R"__(#include "main.h"
namespace app {
const char* const Odd = R"x(Describe("TMain" { "})x";

const vcl::TClass& TMain::Class() {
  static const vcl::TClass info = vcl::Describe<TMain, vcl::TForm>("TMain", "main", {
      vcl::Field<&TMain::One>("One"),  // Kept, too.
      vcl::Property<&TMain::A, &TMain::B>("A"),
      vcl::Method<&TMain::OneClick>("OneClick"),
      vcl::Method<&TMain::Calls>("Calls"),
      vcl::Method<&TMain::Empty>("Empty")});
  return info;
}

void TMain::Mine() { Two = '{'; }

void TMain::Calls() { Mine(); }

void TMain::Empty(vcl::TObject* sender) {
}
}  // namespace app
)__";

TEST(UnitWriter, ChangesOnlyWhatTheFormChangesAndWritingTwiceChangesNothing) {
  const TUnitForm form =
      Form({Button("One"), Button("Two")}, {Click("OneClick"), Click("TwoClick")});
  const TUnitTexts texts = WriteUnit(form, Header, Source);
  EXPECT_THAT(texts.Header, HasSubstr("TControl* One = nullptr;  // The first.\n"
                                      "  qel::TQELButton* Two = nullptr;\n"));
  EXPECT_THAT(texts.Header, HasSubstr("#include \"vcl/vcl.h\"\n"
                                      "#include \"qel/controls/Qeltbutton.h\"\n"));
  EXPECT_THAT(texts.Header, HasSubstr("  void Calls();\n  void TwoClick(vcl::TObject* sender);\n"));
  EXPECT_THAT(texts.Header, Not(HasSubstr("Empty")));
  EXPECT_THAT(texts.Source,
              HasSubstr("\"One\"),  // Kept, too.\n          vcl::Field<&TMain::Two>(\"Two\"),\n"
                        "      vcl::Property<&TMain::A, &TMain::B>(\"A\"),\n"));
  EXPECT_THAT(texts.Source, HasSubstr("vcl::Method<&TMain::TwoClick>(\"TwoClick\"),"));
  EXPECT_THAT(texts.Source, HasSubstr("void TMain::TwoClick(vcl::TObject* sender) {\n}\n"));
  EXPECT_LT(texts.Source.find("TMain::TwoClick(vcl"), texts.Source.find("}  // namespace app"));
  EXPECT_THAT(texts.Source, Not(HasSubstr("Empty")));
  EXPECT_THAT(texts.Source, HasSubstr("void TMain::Calls() { Mine(); }\n"));
  EXPECT_THAT(texts.Source, Not(HasSubstr("(\"Calls\")")));
  EXPECT_THAT(texts.Notes, ElementsAre(HasSubstr("Calls")));

  const TUnitTexts again = WriteUnit(form, texts.Header, texts.Source);
  EXPECT_EQ(again.Header, texts.Header);
  EXPECT_EQ(again.Source, texts.Source);
  EXPECT_THAT(again.Notes, ElementsAre());

  // A header that is lost is written anew, with what the source still defines.
  const TUnitTexts anew = WriteUnit(form, "", texts.Source);
  EXPECT_THAT(anew.Header, HasSubstr("  void TwoClick(vcl::TObject* sender);\n"));
  EXPECT_THAT(anew.Header, HasSubstr("  void Mine();\n  void Calls();\n"));

  // What doesn't know the form whole removes nothing.
  TUnitForm incomplete = Form({}, {});
  incomplete.Incomplete = true;
  EXPECT_EQ(WriteUnit(incomplete, Header, Source).Source, Source);
}

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size()) {
    text.replace(at, what.size(), by);
  }
  return text;
}

TEST(UnitWriter, NewUnitsGrowAndShrinkAgain) {
  const TUnitTexts empty = WriteUnit(Form({}, {}), "", "");
  const TUnitForm full = Form({Button("One")}, {Click("OneClick")});
  const TUnitTexts grown = WriteUnit(full, empty.Header, empty.Source);
  const TUnitTexts fresh = WriteUnit(full, "", "");
  EXPECT_EQ(grown.Header, fresh.Header);
  EXPECT_EQ(grown.Source, fresh.Source);
  EXPECT_EQ(WriteUnit(Form({}, {}), grown.Header, grown.Source).Source, empty.Source);
  // A renamed class of a component changes the declaration in its place.
  TUnitForm other = full;
  other.Fields[0] = {"One", {"vcl::TEdit"}, "vcl/vcl.h"};
  EXPECT_THAT(WriteUnit(other, fresh.Header, fresh.Source).Header,
              HasSubstr(" private:\n  vcl::TEdit* One = nullptr;\n"));
  // Line breaks stay what they are.
  const TUnitTexts crLf =
      WriteUnit(full, Replaced(empty.Header, "\n", "\r\n"), Replaced(empty.Source, "\n", "\r\n"));
  EXPECT_EQ(crLf.Header, Replaced(grown.Header, "\n", "\r\n"));
  EXPECT_EQ(crLf.Source, Replaced(grown.Source, "\n", "\r\n"));
}

TEST(UnitWriter, WhatCannotBeWrittenIsRefusedOrTold) {
  const TUnitTexts empty = WriteUnit(Form({}, {}), "", "");
  const auto refusal = [&](const TUnitForm& form, const std::string& header,
                           const std::string& source) -> std::string {
    try {
      WriteUnit(form, header, source);
    } catch (const EUnitError& error) {
      return error.what();
    }
    return "nothing was refused";
  };
  const TUnitForm plain = Form({Button("One")}, {});
  const struct {
    TUnitForm Form;
    std::string Header, Source, Message;
  } cases[] = {
      {plain, empty.Header, "", "main.cpp is not"},
      {plain, empty.Header, empty.Source + "/* ", "not closed"},
      {plain, empty.Header, empty.Source + "}", "closes nothing"},
      {plain, empty.Header + "{ \"", empty.Source, "main.h, line 14: the text is not closed"},
      {plain, empty.Header + empty.Header, empty.Source, "there twice"},
      {plain, empty.Header, empty.Source + empty.Source, "there twice"},
      {plain, "// nothing\n", empty.Source, "no class TMain"},
      {plain, empty.Header, "// nothing\n", "no table"},
      {plain, empty.Header, empty.Source + "class TMain {};", "declared here"},
      {Form({Button("delete")}, {}), "", "", "word of C++"},
      {Form({Button("One")}, {Click("one")}), "", "", "names two things"},
      {Form({Button("Class")}, {}), "", "", "something else"},
      {Form({Button("\xC3\x9C")}, {}), "", "", "can't be the name"},
  };
  for (const auto& each : cases) {
    EXPECT_THAT(refusal(each.Form, each.Header, each.Source), HasSubstr(each.Message));
  }
  // What is of a foreign class is declared by hand, and then like others.
  const TUnitForm foreign = Form({{"Odd", {}, {}}}, {});
  const TUnitTexts undeclared = WriteUnit(foreign, "", "");
  EXPECT_THAT(undeclared.Notes, ElementsAre(HasSubstr("Odd")));
  const TUnitTexts declared = WriteUnit(
      foreign, Replaced(undeclared.Header, " private:\n", " private:\n  odd::TOdd* Odd;\n"),
      undeclared.Source);
  EXPECT_THAT(declared.Source, HasSubstr("Field<&TMain::Odd>(\"Odd\")"));
  EXPECT_THAT(declared.Notes, ElementsAre());
  const TUnitTexts odd = WriteUnit(Form({}, {{"Odd", "TOddEvent", ""}}), "", "");
  EXPECT_THAT(odd.Notes, ElementsAre(HasSubstr("TOddEvent")));
  EXPECT_THAT(odd.Source, Not(HasSubstr("Odd")));
}

/// The parameters without their names.
std::string TypesOf(std::string_view parameters) {
  return Replaced(std::regex_replace(std::string(parameters), std::regex(" \\w+(,|$)"), "$1"),
                  "const ", "");
}

/// An event's parameters as the compiler knows them, spelled as the unit writer does.
std::string TypesOf(const vcl::TPropInfo& event) {
  const std::unique_ptr<char, decltype(&std::free)> name(
      abi::__cxa_demangle(event.Signature->name(), nullptr, nullptr, nullptr), &std::free);
  std::string called = Replaced(name.get(), " const&", "&");
  for (const auto& [is, as] :
       {std::pair(" >", ">"),
        {"std::__cxx11::basic_string<char, std::char_traits<char>, "
         "std::allocator<char>>",
         "std::string"},
        {"std::vector<std::string, std::allocator<std::string>>", "std::vector<std::string>"},
        {"unsigned short", "std::uint16_t"}}) {
    called = Replaced(called, is, as);
  }
  return std::regex_replace(called, std::regex("vcl::TSet<(vcl::T\\w+)Value>"), "$1");
}

/// The class and those of the items of its collections.
std::set<const vcl::TClass*> WithItems(const vcl::TClass& type) {
  std::set<const vcl::TClass*> types{&type};
  vcl::TForm owner(nullptr);
  const std::unique_ptr<vcl::TComponent> made(type.Maker().Component(&owner));
  for (const vcl::TPropInfo* each : type.Published()) {
    if (each->IsEvent() || !each->Type->ClassOf) continue;
    const auto* items = dynamic_cast<vcl::TCollection*>(std::get<vcl::TObject*>(each->Get(*made)));
    if (items) types.insert(&items->ItemClass());
  }
  return types;
}

TEST(UnitWriter, EveryClassOfThePaletteHasItsHeaderAndItsEventsParameters) {
  if (vcl::RegisteredComponents().empty()) RegisterStandardPages();
  const vcl::TPackage package("qel.dll");
  std::set<const vcl::TClass*> types{&vcl::TForm::Class()};
  for (const auto& [page, classes] : vcl::RegisteredComponents()) {
    for (const vcl::TClass* type : classes) types.merge(WithItems(*type));
    for (const vcl::TClass* type : classes) {
      std::ifstream file(std::string(DOCS_FOLDER "/../") + type->Header());
      EXPECT_TRUE(file.is_open()) << type->Name() << ": " << type->Header();
      EXPECT_THAT(type->CppName(), HasSubstr("::" + type->Name()));
    }
  }
  int checked = 0;
  for (const vcl::TClass* type : types) {
    for (const vcl::TPropInfo* event : type->Published()) {
      if (!event->IsEvent()) continue;
      const std::string written = TypesOf(event->Parameters);
      EXPECT_FALSE(written.empty()) << event->TypeName();
      EXPECT_THAT(TypesOf(*event), HasSubstr("<" + written + ">"))
          << type->Name() << "." << event->Name << " " << event->TypeName();
      ++checked;
    }
  }
  EXPECT_GT(checked, 300);
}

}  // namespace
}  // namespace ide
