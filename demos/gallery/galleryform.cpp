// TGalleryForm: what all pages share: bound settings, and the status bar.
#include "demos/gallery/galleryform.h"

#include "demos/gallery/choicespage.h"
#include "demos/gallery/desktoppage.h"
#include "demos/gallery/dialogspage.h"
#include "demos/gallery/editingpage.h"
#include "demos/gallery/fieldspage.h"
#include "demos/gallery/filespage.h"
#include "demos/gallery/listspage.h"
#include "demos/gallery/movingpage.h"
#include "demos/gallery/picklistspage.h"
#include "demos/gallery/standardpage.h"
#include "demos/gallery/systempage.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/properties.h"

namespace gallery {

using namespace vcl;

const TClass& TGalleryForm::Class() {
  using T = TGalleryForm;
  static const TClass info =
      Describe<T, TForm>("gallery::TGalleryForm", "demos/gallery/galleryform.h",
                         {
                             Field<&T::Pages>("Pages"),
                             Field<&T::StatusPanel>("StatusPanel"),
                             Field<&T::ButtonsPage>("ButtonsPage"),
                             Field<&T::ButtonSubjectBox>("ButtonSubjectBox"),
                             Field<&T::DropList>("DropList"),
                             Field<&T::EventList>("EventList"),
                             Field<&T::ButtonMenu>("ButtonMenu"),
                             Field<&T::EnabledAction>("EnabledAction"),
                             Field<&T::WordWrapAction>("WordWrapAction"),
                             Field<&T::SunkAction>("SunkAction"),
                             Field<&T::ThreeDimensionalAction>("ThreeDimensionalAction"),
                             Field<&T::StyleItem>("StyleItem"),
                             Field<&T::HintUpLeftField>("HintUpLeftField"),
                             Field<&T::HintDownRightField>("HintDownRightField"),
                             Field<&T::EventsButton>("EventsButton"),
                             Field<&T::DropLabel>("DropLabel"),
                             Field<&T::SampleLabel>("SampleLabel"),
                             Field<&T::SharedBackground>("SharedBackground"),
                             Field<&T::StretchedBackground>("StretchedBackground"),
                             Field<&T::SeeThroughBackground>("SeeThroughBackground"),
                             Field<&T::TiledBackground>("TiledBackground"),
                             Field<&T::BackImageBox>("BackImageBox"),
                             Field<&T::ChangesLabel>("ChangesLabel"),
                             Field<&T::SampleGauge>("SampleGauge"),
                             Field<&T::LiveGauge>("LiveGauge"),
                             Field<&T::LiveTimer>("LiveTimer"),
                             Field<&T::SampleSpin>("SampleSpin"),
                             Field<&T::SpinGauge>("SpinGauge"),
                             Field<&T::SampleExplorer>("SampleExplorer"),
                             Field<&T::HintsPage>("HintsPage"),
                             Field<&T::BubbleHint>("BubbleHint"),
                             Field<&T::HintStageField>("HintStageField"),
                             Method<&T::ButtonClick>("ButtonClick"),
                             Method<&T::SubjectChange>("SubjectChange"),
                             Method<&T::ButtonMenuPopup>("ButtonMenuPopup"),
                             Method<&T::ToggleUpdate>("ToggleUpdate"),
                             Method<&T::ToggleExecute>("ToggleExecute"),
                             Method<&T::ButtonMenuStyle>("ButtonMenuStyle"),
                             Method<&T::StoneDragOver>("StoneDragOver"),
                             Method<&T::DropLabelDragDrop>("DropLabelDragDrop"),
                             Method<&T::DropListDragDrop>("DropListDragDrop"),
                             Method<&T::TrashClick>("TrashClick"),
                             Method<&T::TrashDragDrop>("TrashDragDrop"),
                             Method<&T::LogMouseDown>("LogMouseDown"),
                             Method<&T::LogMouseUp>("LogMouseUp"),
                             Method<&T::LogKeyDown>("LogKeyDown"),
                             Method<&T::LogKeyPress>("LogKeyPress"),
                             Method<&T::LogKeyUp>("LogKeyUp"),
                             Method<&T::LogEnter>("LogEnter"),
                             Method<&T::LogExit>("LogExit"),
                             Method<&T::LogStartDrag>("LogStartDrag"),
                             Method<&T::LogEndDrag>("LogEndDrag"),
                             Method<&T::PictureChange>("PictureChange"),
                             Method<&T::SharedChanged>("SharedChanged"),
                             Method<&T::LiveTimerTick>("LiveTimerTick"),
                             Method<&T::LiveStartClick>("LiveStartClick"),
                             Method<&T::LiveStopClick>("LiveStopClick"),
                             Method<&T::SampleSpinChange>("SampleSpinChange"),
                             Method<&T::ExplorerAddClick>("ExplorerAddClick"),
                             Method<&T::HintEdgeClick>("HintEdgeClick"),
                             Method<&T::SelectHintDirection>("SelectHintDirection"),
                         });
  return info;
}

TGalleryForm::TGalleryForm(TComponent* owner) : TForm(owner) {
  LoadForm();
  SetUpButtons();
  SetUpLabels();
  SetUpBackgrounds();
  SetUpGauges();
  SetUpSpinEdits();
  SetUpExplorer();
  SetUpHints();
  AddPage<TChoicesPage>("Choices");
  AddPage<TMovingPage>("Moving");
  AddPage<TPickListsPage>("Pick lists");
  AddPage<TStandardPage>("Standard");
  AddPage<TListsPage>("Lists");
  AddPage<TEditingPage>("Editing");
  AddPage<TFieldsPage>("Fields");
  AddPage<TDialogsPage>("Dialogs");
  AddPage<TSystemPage>("System");
  AddPage<TDesktopPage>("Desktop");
  AddPage<TFilesPage>("Files");
  Application()->OnHint = [this](TObject*) { ShowStatus(Application()->Hint()); };
}

template <class Page>
void TGalleryForm::AddPage(const char* caption) {
  auto* sheet = new TTabSheet(this);
  sheet->SetCaption(caption);
  sheet->SetPageControl(Pages);
  auto* page = new Page(this);
  page->SetAlign(alClient);
  page->SetParent(sheet);
}

TGalleryForm::~TGalleryForm() { Application()->OnHint.Clear(); }

TSettingBinder& TGalleryForm::Bind(const std::vector<TSetting>& settings) {
  const auto tell = [this](const std::string& message) { ShowStatus(message); };
  FBinders.push_back(std::make_unique<TSettingBinder>(*this, settings, tell));
  return *FBinders.back();
}

void TGalleryForm::ShowStatus(const std::string& text) {
  // The panel's text begins at its very edge.
  StatusPanel->SetCaption(text.empty() ? text : " " + text);
}

}  // namespace gallery
