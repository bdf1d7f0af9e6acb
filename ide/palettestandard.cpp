// Which of the class library's components stand on which page of the palette, and which have an
// editor of the designer's own.
#include "ide/actionwindow.h"
#include "ide/fieldswindow.h"
#include "ide/menuwindow.h"
#include "ide/palette.h"
#include "vcl/db/datasource.h"
#include "vcl/db/memorydataset.h"
#include "vcl/db/odbcconnection.h"
#include "vcl/db/odbcquery.h"
#include "vcl/dbctrls/dbctrls.h"
#include "vcl/designintf/containereditors.h"
#include "vcl/designintf/imagelistdialog.h"
#include "vcl/designintf/treeitemsdialog.h"
#include "vcl/net/sockets.h"
#include "vcl/stdctrls/buttons.h"
#include "vcl/vcl.h"

namespace ide {

namespace {

void RegisterStandardActions() {
  using namespace vcl;
  const TActionEntry categories[] = {
      {"Edit",
       {&TEditCut::Class(), &TEditCopy::Class(), &TEditPaste::Class(), &TEditSelectAll::Class(),
        &TEditUndo::Class(), &TEditDelete::Class()}},
      {"File", {&TFileOpen::Class(), &TFileSaveAs::Class(), &TFileExit::Class()}},
      {"Window",
       {&TWindowClose::Class(), &TWindowCascade::Class(), &TWindowTileHorizontal::Class(),
        &TWindowTileVertical::Class(), &TWindowArrange::Class(), &TWindowMinimizeAll::Class()}},
      {"Help", {&THelpContents::Class()}},
      {"Data set",
       {&TDataSetFirst::Class(), &TDataSetPrior::Class(), &TDataSetNext::Class(),
        &TDataSetLast::Class(), &TDataSetInsert::Class(), &TDataSetDelete::Class(),
        &TDataSetEdit::Class(), &TDataSetPost::Class(), &TDataSetCancel::Class(),
        &TDataSetRefresh::Class()}},
  };
  RegisterNoIcon({&TAction::Class()});
  for (const auto& [category, classes] : categories) RegisterActions(category, classes);
}

}  // namespace

void RegisterStandardPages() {
  using namespace vcl;
  // The fields of data sets, too, which have no icon.
  RegisterDataControls();
  const TPaletteEntry pages[] = {
      {"Standard",
       {&TMainMenu::Class(), &TPopupMenu::Class(), &TLabel::Class(), &TEdit::Class(),
        &TMemo::Class(), &TButton::Class(), &TCheckBox::Class(), &TRadioButton::Class(),
        &TListBox::Class(), &TComboBox::Class(), &TScrollBar::Class(), &TGroupBox::Class(),
        &TRadioGroup::Class(), &TPanel::Class(), &TActionList::Class()}},
      {"Additional",
       {&TBitBtn::Class(), &TSpeedButton::Class(), &TImage::Class(), &TShape::Class(),
        &TBevel::Class(), &TStaticText::Class(), &TCheckListBox::Class(), &TScrollBox::Class(),
        &TSplitter::Class(), &TFlowPanel::Class(), &TGridPanel::Class(), &TStringGrid::Class(),
        &TDrawGrid::Class(), &TMaskEdit::Class(), &TLabeledEdit::Class(), &TColorBox::Class(),
        &TColorListBox::Class(), &TPrintPreview::Class()}},
      {"Win32",
       {&TTabControl::Class(), &TPageControl::Class(), &TImageList::Class(), &TTrackBar::Class(),
        &TTreeView::Class(), &TListView::Class(), &THeaderControl::Class(), &TStatusBar::Class(),
        &TToolBar::Class(), &TCoolBar::Class(), &TProgressBar::Class(), &TUpDown::Class(),
        &THotKey::Class(), &TDateTimePicker::Class(), &TMonthCalendar::Class(), &TRichEdit::Class(),
        &TAnimate::Class()}},
      {"System",
       {&TTimer::Class(), &TPaintBox::Class(), &TProcess::Class(), &TClipboardMonitor::Class(),
        &TDropTarget::Class()}},
      {"Data Access",
       {&TDataSource::Class(), &TMemoryDataSet::Class(), &TOdbcConnection::Class(),
        &TOdbcQuery::Class()}},
      {"Data Controls",
       {&TDBGrid::Class(), &TDBNavigator::Class(), &TDBText::Class(), &TDBEdit::Class(),
        &TDBMemo::Class(), &TDBImage::Class(), &TDBListBox::Class(), &TDBComboBox::Class(),
        &TDBCheckBox::Class(), &TDBRadioGroup::Class(), &TDBLookupListBox::Class(),
        &TDBLookupComboBox::Class()}},
      {"Dialogs",
       {&TOpenDialog::Class(), &TSaveDialog::Class(), &TFontDialog::Class(), &TColorDialog::Class(),
        &TPrintDialog::Class(), &TPrinterSetupDialog::Class(), &TPageSetupDialog::Class(),
        &TFindDialog::Class(), &TReplaceDialog::Class()}},
      {"Internet", {&TClientSocket::Class()}},
  };
  for (const auto& [page, classes] : pages) RegisterComponents(page, classes);
  RegisterNoIcon({&TTabSheet::Class(), &TToolButton::Class()});
  RegisterContainerEditors();
  RegisterMenuEditor();
  RegisterImageListEditor();
  RegisterTreeItemsEditor();
  RegisterStandardActions();
  RegisterActionEditor();
  RegisterFieldEditors();
}

}  // namespace ide
