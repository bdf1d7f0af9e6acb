// The tables of headers, handlers' parameters and keywords for C++ units.
#include "ide/cppnames.h"

#include <algorithm>
#include <iterator>

#include "vcl/rtl/text.h"

namespace ide {

using namespace vcl;

namespace {

/// The header of a class, or of all classes of a unit. The class comes before its unit.
struct THeaderRow {
  std::string_view Name, Header;
};
constexpr THeaderRow Headers[] = {
    {"TDataSource", "vcl/db/datasource.h"},
    {"TMemoryDataSet", "vcl/db/memorydataset.h"},
    {"TOdbcQuery", "vcl/db/odbcquery.h"},
    {"TDBEdit", "vcl/dbctrls/dbedit.h"},
    {"TDBGrid", "vcl/dbctrls/dbgrid.h"},
    {"buttons", "vcl/stdctrls/buttons.h"},
    {"comctrls", "vcl/vcl.h"},
    {"controls", "vcl/vcl.h"},
    {"db", "vcl/db/fields.h"},
    {"dialogs", "vcl/vcl.h"},
    {"extctrls", "vcl/vcl.h"},
    {"forms", "vcl/vcl.h"},
    {"menus", "vcl/vcl.h"},
    {"sockets", "vcl/net/sockets.h"},
    {"stdctrls", "vcl/vcl.h"},
    {"Qelclasses", "qel/core/Qelclasses.h"},
    {"Qelclasses2", "qel/core/Qelclasses2.h"},
    {"Qeltbackground", "qel/controls/Qeltbackground.h"},
    {"Qeltbutton", "qel/controls/Qeltbutton.h"},
    {"Qeltdbascii", "qel/data/Qeltdbascii.h"},
    {"Qeltexplorertree", "qel/shell/Qeltexplorertree.h"},
    {"Qeltformsaver", "qel/services/Qeltformsaver.h"},
    {"Qeltgauge", "qel/controls/Qeltgauge.h"},
    {"Qelthint", "qel/controls/Qelthint.h"},
    {"Qeltiemails", "qel/mail/Qeltiemails.h"},
    {"Qeltlabel", "qel/controls/Qeltlabel.h"},
    {"Qeltmapimail", "qel/mail/Qeltmapimail.h"},
    {"Qeltmrumenu", "qel/services/Qeltmrumenu.h"},
    {"Qeltonlyone", "qel/services/Qeltonlyone.h"},
    {"Qeltquickmail", "qel/mail/Qeltquickmail.h"},
    {"Qeltspinedit", "qel/controls/Qeltspinedit.h"},
    {"Qeltstoredata", "qel/core/Qeltstoredata.h"},
    {"Qeltsystemtray", "qel/services/Qeltsystemtray.h"},
};

/// The parameters of the handlers of each event type, by the name that it is published under.
struct TEventRow {
  std::string_view Type, Parameters;
};
constexpr TEventRow Events[] = {
    {"TCloseEvent", "vcl::TObject* sender, vcl::TCloseAction& action"},
    {"TCloseQueryEvent", "vcl::TObject* sender, bool& canClose"},
    {"TDataChangeEvent", "vcl::TObject* sender, vcl::TField* field"},
    {"TDataSetErrorEvent",
     "vcl::TDataSet* dataSet, const vcl::EDatabaseError& error, vcl::TDataAction& action"},
    {"TDataSetNotifyEvent", "vcl::TDataSet* dataSet"},
    {"TDragDropEvent", "vcl::TObject* sender, vcl::TObject* source, int x, int y"},
    {"TDragOverEvent",
     "vcl::TObject* sender, vcl::TObject* source, int x, int y, vcl::TDragState state, "
     "bool& accept"},
    {"TDrawItemEvent",
     "vcl::TObject* sender, int index, const vcl::TRect& rect, vcl::TOwnerDrawState state"},
    {"TEndDragEvent", "vcl::TObject* sender, vcl::TObject* target, int x, int y"},
    {"TExceptionEvent", "vcl::TObject* sender, const std::exception& error"},
    {"TFieldGetTextEvent", "vcl::TField* sender, std::string& text, bool displayText"},
    {"TFieldNotifyEvent", "vcl::TField* sender"},
    {"TFieldSetTextEvent", "vcl::TField* sender, const std::string& text"},
    {"TKeyEvent", "vcl::TObject* sender, std::uint16_t& key, vcl::TShiftState shift"},
    {"TKeyPressEvent", "vcl::TObject* sender, char32_t& key"},
    {"TMessageEvent", "MSG& message, bool& handled"},
    {"TMouseEvent",
     "vcl::TObject* sender, vcl::TMouseButton button, vcl::TShiftState shift, int x, int y"},
    {"TMouseMoveEvent", "vcl::TObject* sender, vcl::TShiftState shift, int x, int y"},
    {"TNotifyEvent", "vcl::TObject* sender"},
    {"TOnSelectHintDirection", "vcl::TControl* control, qel::TQELDirectionB& direction"},
    {"TQELAddFileEvent", "vcl::TObject* sender, std::string path, bool& add"},
    {"TQELBeforeRetrieve", "vcl::TObject* sender, std::uint16_t message"},
    {"TQELFindDirectoryEvent",
     "vcl::TObject* sender, std::string folder, int first, qel::TQELFoundFile& found, "
     "bool& exists"},
    {"TQELImportExportEvent", "vcl::TObject* sender, std::string line"},
    {"TQELMRUItemClick", "vcl::TObject* sender, std::string fileName"},
    {"TQELMapiConnect", "vcl::TObject* sender, int code"},
    {"TQELMapiSend", "vcl::TObject* sender, qel::TQELMapiMessage* message"},
    {"TQELOnCodingProgress", "vcl::TObject* sender, std::uint16_t percent"},
    {"TQELOnCodingStart", "vcl::TObject* sender, const std::string& fileName, int size"},
    {"TQELOnDelete", "vcl::TObject* sender, std::uint16_t message"},
    {"TQELOnError", "vcl::TObject* sender, int code, const std::string& message"},
    {"TQELOnExceeded", "vcl::TObject* sender, int instances"},
    {"TQELOnSendError", "vcl::TObject* sender, int code, qel::TQELMapiMessage* message"},
    {"TQELOnStoreControl", "vcl::TObject* sender, bool& store"},
    {"TQELSendingProgress", "vcl::TObject* sender, std::uint16_t percent"},
    {"TShowHintEvent", "std::string& hint, bool& canShow, vcl::THintInfo& info"},
    {"TSocketErrorEvent",
     "vcl::TObject* sender, vcl::TCustomWinSocket* socket, vcl::TErrorEvent event, int& code"},
    {"TSocketNotifyEvent", "vcl::TObject* sender, vcl::TCustomWinSocket* socket"},
    {"TStartDragEvent", "vcl::TObject* sender, vcl::TDragObject*& dragObject"},
    {"TTabChangingEvent", "vcl::TObject* sender, bool& allow"},
    {"TTVChangedEvent", "vcl::TObject* sender, vcl::TTreeNode* node"},
    {"TTVChangingEvent", "vcl::TObject* sender, vcl::TTreeNode* node, bool& allow"},
    {"TTVCollapsingEvent", "vcl::TObject* sender, vcl::TTreeNode* node, bool& allow"},
    {"TTVCompareEvent",
     "vcl::TObject* sender, vcl::TTreeNode* first, vcl::TTreeNode* second, int data, "
     "int& order"},
    {"TTVEditedEvent", "vcl::TObject* sender, vcl::TTreeNode* node, std::string& text"},
    {"TTVEditingEvent", "vcl::TObject* sender, vcl::TTreeNode* node, bool& allow"},
    {"TTVExpandedEvent", "vcl::TObject* sender, vcl::TTreeNode* node"},
    {"TTVExpandingEvent", "vcl::TObject* sender, vcl::TTreeNode* node, bool& allow"},
};

constexpr std::string_view Keywords[] = {
    "alignas",       "alignof",     "and",
    "and_eq",        "asm",         "auto",
    "bitand",        "bitor",       "bool",
    "break",         "case",        "catch",
    "char",          "char16_t",    "char32_t",
    "char8_t",       "class",       "co_await",
    "co_return",     "co_yield",    "compl",
    "concept",       "const",       "const_cast",
    "consteval",     "constexpr",   "constinit",
    "continue",      "decltype",    "default",
    "delete",        "do",          "double",
    "dynamic_cast",  "else",        "enum",
    "explicit",      "export",      "extern",
    "false",         "float",       "for",
    "friend",        "goto",        "if",
    "inline",        "int",         "long",
    "mutable",       "namespace",   "new",
    "noexcept",      "not",         "not_eq",
    "nullptr",       "operator",    "or",
    "or_eq",         "private",     "protected",
    "public",        "register",    "reinterpret_cast",
    "requires",      "return",      "short",
    "signed",        "sizeof",      "static",
    "static_assert", "static_cast", "struct",
    "switch",        "template",    "this",
    "thread_local",  "throw",       "true",
    "try",           "typedef",     "typeid",
    "typename",      "union",       "unsigned",
    "using",         "virtual",     "void",
    "volatile",      "wchar_t",     "while",
    "xor",           "xor_eq",
};

std::string_view HeaderOf(std::string_view name) {
  const auto* found = std::ranges::find(Headers, name, &THeaderRow::Name);
  return found == std::end(Headers) ? std::string_view() : found->Header;
}

}  // namespace

TCppClass CppClassOf(const TClass& type) {
  std::string_view header = HeaderOf(type.Name());
  if (header.empty()) header = HeaderOf(type.Unit());
  if (header.empty()) return {};
  return {Concat(header.starts_with("vcl/") ? "vcl::" : "qel::", type.Name()), std::string(header)};
}

std::string_view ParametersOf(std::string_view eventType) {
  const auto* found = std::ranges::find(Events, eventType, &TEventRow::Type);
  return found == std::end(Events) ? std::string_view() : found->Parameters;
}

bool IsCppKeyword(std::string_view name) {
  return std::ranges::find(Keywords, name) != std::end(Keywords);
}

}  // namespace ide
