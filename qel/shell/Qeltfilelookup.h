// TQELFileLookup: an edit for the name of a file or a folder.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "qel/controls/Qeltlookupedit.h"

namespace qel {

/// An edit whose list shows, as one types, what there is in the folder before the name: its
/// folders, which end with "\", then its files; without a folder the drives, and what is in the
/// current folder. What is hidden is left out. Opened by its button, the list shows all that is in
/// the folder. A second button, or Shift+F4, opens the system's dialog. An OnLookup handler that is
/// assigned fills the list instead.
class QEL_API TQELFileLookup : public TQELLookupEdit {
 public:
  explicit TQELFileLookup(vcl::TComponent* owner);
  ~TQELFileLookup() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  const std::string& DialogTitle() const { return FDialogTitle; }
  /// The dialog's caption; empty for the system's own.
  void SetDialogTitle(const std::string& title) { FDialogTitle = title; }
  const std::string& Filter() const { return FFilter; }
  /// Descriptions and masks of files, "Texts|*.txt;*.md|All files|*.*", for the dialog and the
  /// list; empty for all files.
  void SetFilter(const std::string& filter);
  int FilterIndex() const { return FFilterIndex; }
  /// Which of the filters holds, from 1; one that is not there is ignored by the list. The dialog's
  /// user changes it.
  void SetFilterIndex(int index);
  bool MustExist() const { return FMustExist; }
  /// True: a text that names nothing that is there is replaced, when the focus leaves, by the last
  /// one that did, and the dialog takes no other. LimitToList does the same.
  void SetMustExist(bool mustExist) { FMustExist = mustExist; }

  /// Has the user choose a file in the system's dialog; OnSelect follows. False when he does not.
  bool Browse();

 protected:
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override;
  void DoEnter() override;
  void DoExit() override;
  std::vector<TQELEditPart> Parts() const override;
  void DrawPart(vcl::TCanvas& canvas, int number, const vcl::TRect& rect,
                TQELPartLook look) override;
  void PressPart(int number) override;
  void LookUp(const std::string& text) override;
  bool FillItems(const std::string& text) override;
  void Choose(int line) override;
  void KeepToList() override;

 private:
  const vcl::TStrings& NamesIn(const std::string& folder);
  std::string Masks() const;
  void Take(const std::string& name);

  std::string FDialogTitle;
  std::string FFilter;
  int FFilterIndex = 1;
  bool FMustExist = false;
  bool FTyping = false;   // The list is for what is typed, else for the whole folder.
  std::string FLastName;  // The last text that named something.
  std::string FKnown;     // The folder that the names are of.
  std::unique_ptr<vcl::TStringList> FNames;
  std::uint64_t FReadAt = 0;  // As GetTickCount64 counts; 0 for never.
};

}  // namespace qel
