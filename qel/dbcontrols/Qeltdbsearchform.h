// TQELDBSearchForm: a window to look for records.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qel/core/Qelbuttondetails.h"
#include "qel/dialogs/Qelformdialog.h"
#include "vcl/db/datasource.h"
#include "vcl/rtl/strings.h"

namespace qel {

/// How a search goes.
enum TQELDBSearchOption {
  soCase,        ///< Capitals are other letters.
  soWholeField,  ///< The text is all that the field holds.
  soFromStart,   ///< The field begins with the text.
  soFromCurrent  ///< The first hit is that from the current record on.
};
using TQELDBSearchOptions = vcl::TSet<TQELDBSearchOption>;

/// Sender, the number of records that have been looked at, and whether to give up.
using TQELDBSearchProgress = vcl::TEvent<vcl::TObject*, int, bool&>;

/// A window in which the user looks for records by what their fields show, counts those that are
/// hits and has the others hidden. Null matches nothing, and fields of bytes are not searched.
///
/// What is being edited is posted before a search, as by every move; the EDatabaseError of a record
/// that cannot be posted is raised by the method, which has then done nothing, and shown by the
/// window. A search that takes long can be stopped with the window's last button. Data sets that
/// move only forwards cannot be searched.
class QEL_API TQELDBSearchForm : public TQELFormDialog {
 public:
  explicit TQELDBSearchForm(vcl::TComponent* owner);
  /// Shows the records again that it has hidden.
  ~TQELDBSearchForm() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Shows the window. True when a record has been found there; with StayOpen true at once. False
  /// without a window, as LastError then says, where there are no records that can be searched.
  /// While the window is up it only comes to the front.
  bool Execute() override;
  /// Goes to the first record that is a hit, with soFromCurrent from the current one on. False when
  /// there is none: the current record stays.
  bool Find();
  /// Goes to the next hit behind the current record.
  bool FindNext();
  /// How many records are hits; -1 when they cannot be counted, or it was given up.
  int Count();
  /// Shows only the hits, of those that were shown before; false when that cannot be done. Works
  /// by the data set's OnFilterRecord, whose own handler goes on being asked.
  bool FilterToHits();
  /// Filters as before FilterToHits.
  void ShowAll();
  /// True from FilterToHits to ShowAll.
  bool Filtered() const { return FKept.has_value(); }
  /// Why the last of these has done nothing; empty when it has, or when there is no hit.
  const std::string& LastError() const { return FLastError; }
  /// True while the window is up.
  bool Shown() const { return FWindow != nullptr; }

  vcl::TDataSource* DataSource() const { return FLink.DataSource(); }
  /// The source of the data set that is searched, which is not owned; null for none.
  void SetDataSource(vcl::TDataSource* source);
  vcl::TStrings* Fields() const { return FFields.get(); }
  /// The names of the fields that the window offers; those that are not there are left out. All of
  /// the data set when empty.
  void SetFields(const vcl::TStrings* fields) { FFields->Assign(fields); }
  const std::string& DefaultField() const { return FDefaultField; }
  /// The field that is searched at first; empty for all those that are offered.
  void SetDefaultField(const std::string& name) { FDefaultField = FSearchField = name; }
  const std::string& SearchField() const { return FSearchField; }
  /// The field that is searched, as the user has chosen it; empty for all.
  void SetSearchField(const std::string& name) { FSearchField = name; }
  const std::string& SearchText() const { return FSearchText; }
  /// What is looked for.
  void SetSearchText(const std::string& text) { FSearchText = text; }
  TQELDBSearchOptions Options() const { return FOptions; }
  /// How it is looked for, as the user has chosen it.
  void SetOptions(TQELDBSearchOptions options) { FOptions = options; }
  bool StayOpen() const { return FStayOpen; }
  /// True lets the user go on with the form while the window is up.
  void SetStayOpen(bool stay) { FStayOpen = stay; }

  const std::string& TextLabel() const { return FTextLabel; }
  /// What stands above the text that is looked for.
  void SetTextLabel(const std::string& text) { FTextLabel = text; }
  const std::string& FieldLabel() const { return FFieldLabel; }
  /// What stands above the fields.
  void SetFieldLabel(const std::string& text) { FFieldLabel = text; }
  const std::string& AllFieldsText() const { return FAllFieldsText; }
  /// The entry for all fields.
  void SetAllFieldsText(const std::string& text) { FAllFieldsText = text; }
  /// The captions of the boxes for Options, a line each in their order; one without is not shown.
  vcl::TStrings* OptionTexts() const { return FOptionTexts.get(); }
  void SetOptionTexts(const vcl::TStrings* texts) { FOptionTexts->Assign(texts); }
  const std::string& NotFoundText() const { return FNotFoundText; }
  /// What the window says when there is no hit; %s is the text.
  void SetNotFoundText(const std::string& text) { FNotFoundText = text; }
  const std::string& CountText() const { return FCountText; }
  /// What the window says of the number of hits, which is %s.
  void SetCountText(const std::string& text) { FCountText = text; }
  const std::string& ProgressText() const { return FProgressText; }
  /// What the window says during a long search; %s is the number of records looked at.
  void SetProgressText(const std::string& text) { FProgressText = text; }

  /// The button that goes to the first hit.
  TQELButtonDetails* FindButton() const { return FFindButton.get(); }
  /// The button that goes to the next hit.
  TQELButtonDetails* FindNextButton() const { return FFindNextButton.get(); }
  /// The button that counts the hits.
  TQELButtonDetails* CountButton() const { return FCountButton.get(); }
  /// The button that hides what is no hit.
  TQELButtonDetails* FilterButton() const { return FFilterButton.get(); }
  /// The button that shows all records again.
  TQELButtonDetails* ShowAllButton() const { return FShowAllButton.get(); }
  /// The button that closes the window, and stops a search.
  TQELButtonDetails* CloseButton() const { return FCloseButton.get(); }

  /// A hit has become the current record.
  vcl::TNotifyEvent OnFound;
  /// There is no hit, or no further one.
  vcl::TNotifyEvent OnNotFound;
  /// A search takes long; each tenth of a second.
  TQELDBSearchProgress OnProgress;

 protected:
  void Notification(vcl::TComponent* component, vcl::TOperation operation) override;

 private:
  class TMatch;
  class TScan;
  class TWindow;
  class TLink : public vcl::TDataLink {
   public:
    explicit TLink(TQELDBSearchForm& form) : FForm(form) {}

   protected:
    void ActiveChanged() override { FForm.FieldsChanged(); }
    void LayoutChanged() override { FForm.FieldsChanged(); }

   private:
    TQELDBSearchForm& FForm;
  };
  /// What a data set that is filtered to the hits was like before.
  struct TKept {
    vcl::TDataSet* Data;
    bool Filtered;
    std::string Filter;
    vcl::TFilterRecordEvent Handler;
  };

  bool Refuse(const std::string& reason);
  bool HasRecords();
  bool Ready();
  bool GoTo(bool next);
  std::vector<std::string> Offered() const;
  std::vector<std::string> Searched() const;
  void FieldsChanged();
  static void Restore(const TKept& kept);

  TLink FLink;
  std::unique_ptr<vcl::TStringList> FFields;
  std::unique_ptr<vcl::TStringList> FOptionTexts;
  std::unique_ptr<TQELButtonDetails> FFindButton, FFindNextButton, FCountButton, FFilterButton,
      FShowAllButton, FCloseButton;
  std::string FDefaultField, FSearchField, FSearchText;
  std::string FTextLabel = "&Text:";
  std::string FFieldLabel = "F&ield:";
  std::string FAllFieldsText = "(all fields)";
  std::string FNotFoundText = "There is no further \"%s\"";
  std::string FCountText = "Records found: %s";
  std::string FProgressText = "Records searched: %s";
  TQELDBSearchOptions FOptions;
  bool FStayOpen = false;
  std::string FLastError;
  std::optional<TKept> FKept;
  TWindow* FWindow = nullptr;
  bool FFound = false;      // Since the window came up.
  bool FSearching = false;  // A search is under way.
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELDBSearchOption>{
    "TQELDBSearchOption", "soCase soWholeField soFromStart soFromCurrent", "TQELDBSearchOptions"};
