// TGalleryForm: the gallery's window, with a page for each of the painted components.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "demos/gallery/settingbinder.h"
#include "qel/controls/Qeltbackground.h"
#include "qel/controls/Qeltbutton.h"
#include "qel/controls/Qeltgauge.h"
#include "qel/controls/Qelthint.h"
#include "qel/controls/Qeltlabel.h"
#include "qel/controls/Qeltspinedit.h"
#include "qel/core/Qeltimer32.h"
#include "qel/shell/Qeltexplorertree.h"
#include "vcl/actions/actions.h"
#include "vcl/forms/forms.h"
#include "vcl/menus/menus.h"
#include "vcl/stdctrls/comctrls.h"
#include "vcl/stdctrls/extctrls.h"
#include "vcl/stdctrls/stdctrls.h"

namespace gallery {

/// The form of gallery.dfm. The sources beside galleryform.cpp hold a page each.
class TGalleryForm : public vcl::TForm {
 public:
  explicit TGalleryForm(vcl::TComponent* owner);
  ~TGalleryForm() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Shows a hint on the page of hints, as if the mouse had rested there; the mouse goes there.
  void ShowSampleHint();

  vcl::TPageControl* Pages = nullptr;
  vcl::TTabSheet* HintsPage = nullptr;

 private:
  // What the form file fills.
  vcl::TPanel* StatusPanel = nullptr;
  vcl::TTabSheet* ButtonsPage = nullptr;
  vcl::TComboBox* ButtonSubjectBox = nullptr;
  vcl::TListBox* DropList = nullptr;
  vcl::TListBox* EventList = nullptr;
  vcl::TPopupMenu* ButtonMenu = nullptr;
  vcl::TAction* EnabledAction = nullptr;
  vcl::TAction* WordWrapAction = nullptr;
  vcl::TAction* SunkAction = nullptr;
  vcl::TAction* ThreeDimensionalAction = nullptr;
  vcl::TMenuItem* StyleItem = nullptr;
  vcl::TPanel* HintUpLeftField = nullptr;
  vcl::TPanel* HintDownRightField = nullptr;
  qel::TQELButton* EventsButton = nullptr;
  qel::TQELLabel* DropLabel = nullptr;
  qel::TQELLabel* SampleLabel = nullptr;
  qel::TQELBackground* SharedBackground = nullptr;
  qel::TQELBackground* StretchedBackground = nullptr;
  qel::TQELBackground* SeeThroughBackground = nullptr;
  qel::TQELBackground* TiledBackground = nullptr;
  vcl::TComboBox* BackImageBox = nullptr;
  vcl::TLabel* ChangesLabel = nullptr;
  qel::TQELGauge* SampleGauge = nullptr;
  qel::TQELGauge* LiveGauge = nullptr;
  qel::TQELTimer32* LiveTimer = nullptr;
  qel::TQELSpinEdit* SampleSpin = nullptr;
  qel::TQELGauge* SpinGauge = nullptr;
  qel::TQELExplorerTree* SampleExplorer = nullptr;
  qel::TQELHint* BubbleHint = nullptr;
  qel::TQELLabel* HintStageField = nullptr;

  // The page of buttons.
  void SetUpButtons();
  void ButtonClick(vcl::TObject* sender);
  void SubjectChange(vcl::TObject* sender);
  void ChooseSubject(qel::TQELButton* button);
  struct TToggle;
  static const TToggle Toggles[];
  void ButtonMenuPopup(vcl::TObject* sender);
  void ToggleUpdate(vcl::TObject* sender);
  void ToggleExecute(vcl::TObject* sender);
  void ButtonMenuStyle(vcl::TObject* sender);
  void SetFromMenu(std::string_view path, const std::string& text);
  void StoneDragOver(vcl::TObject* sender, vcl::TObject* source, int x, int y,
                     vcl::TDragState state, bool& accept);
  void DropLabelDragDrop(vcl::TObject* sender, vcl::TObject* source, int x, int y);
  void DropListDragDrop(vcl::TObject* sender, vcl::TObject* source, int x, int y);
  void TrashClick(vcl::TObject* sender);
  void TrashDragDrop(vcl::TObject* sender, vcl::TObject* source, int x, int y);

  // The log of events.
  void Log(vcl::TObject* sender, std::string_view event, const std::string& details = {});
  void LogMouseDown(vcl::TObject* sender, vcl::TMouseButton button, vcl::TShiftState shift, int x,
                    int y);
  void LogMouseUp(vcl::TObject* sender, vcl::TMouseButton button, vcl::TShiftState shift, int x,
                  int y);
  void LogKeyDown(vcl::TObject* sender, std::uint16_t& key, vcl::TShiftState shift);
  void LogKeyPress(vcl::TObject* sender, char32_t& key);
  void LogKeyUp(vcl::TObject* sender, std::uint16_t& key, vcl::TShiftState shift);
  void LogEnter(vcl::TObject* sender);
  void LogExit(vcl::TObject* sender);
  void LogStartDrag(vcl::TObject* sender, vcl::TDragObject*& object);
  void LogEndDrag(vcl::TObject* sender, vcl::TObject* target, int x, int y);

  // The page of labels.
  void SetUpLabels();

  // The page of backgrounds.
  void SetUpBackgrounds();
  void PictureChange(vcl::TObject* sender);
  void SharedChanged(vcl::TObject* sender);

  // The page of gauges.
  void SetUpGauges();
  void LiveTimerTick(vcl::TObject* sender);
  void LiveStartClick(vcl::TObject* sender);
  void LiveStopClick(vcl::TObject* sender);

  // The page of spin edits.
  void SetUpSpinEdits();
  void SetUpExplorer();
  void ExplorerAddClick(vcl::TObject* sender);
  void SampleSpinChange(vcl::TObject* sender);

  // The page of hints.
  void SetUpHints();
  void HintEdgeClick(vcl::TObject* sender);
  void SelectHintDirection(vcl::TControl* control, qel::TQELDirectionB& direction);

  // The pages with a form file of their own.
  template <class Page>
  void AddPage(const char* caption);

  // What the pages share.
  TSettingBinder& Bind(const std::vector<TSetting>& settings);
  void ShowStatus(const std::string& text);

  std::vector<std::unique_ptr<TSettingBinder>> FBinders;
  TSettingBinder* FButtonSettings = nullptr;
  TSettingBinder* FSpinSettings = nullptr;
  TSettingBinder* FDirectionSetting = nullptr;
  int FChanges = 0;
};

}  // namespace gallery
