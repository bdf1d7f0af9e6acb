// Which of the class library's components stand on which page of the palette, and which have an
// editor of the designer's own.
#include "ide/menuwindow.h"
#include "ide/palette.h"
#include "vcl/db/datasource.h"
#include "vcl/db/memorydataset.h"
#include "vcl/db/odbcquery.h"
#include "vcl/dbctrls/dbedit.h"
#include "vcl/dbctrls/dbgrids.h"
#include "vcl/dbctrls/registration.h"
#include "vcl/net/sockets.h"
#include "vcl/stdctrls/buttons.h"
#include "vcl/vcl.h"

namespace ide {

void RegisterStandardPages() {
  using namespace vcl;
  // The fields of data sets, too, which have no icon.
  RegisterDataControls();
  const TPaletteEntry pages[] = {
      {"Standard",
       {&TMainMenu::Class(), &TPopupMenu::Class(), &TLabel::Class(), &TEdit::Class(),
        &TMemo::Class(), &TButton::Class(), &TCheckBox::Class(), &TRadioButton::Class(),
        &TListBox::Class(), &TComboBox::Class(), &TGroupBox::Class(), &TPanel::Class()}},
      {"Additional",
       {&TBitBtn::Class(), &TSpeedButton::Class(), &TImage::Class(), &TBevel::Class(),
        &TScrollBox::Class(), &TSplitter::Class(), &TFlowPanel::Class(), &TGridPanel::Class()}},
      {"Win32",
       {&TPageControl::Class(), &TImageList::Class(), &TTrackBar::Class(), &TTreeView::Class(),
        &TStatusBar::Class()}},
      {"System", {&TTimer::Class()}},
      {"Data Access", {&TDataSource::Class(), &TMemoryDataSet::Class(), &TOdbcQuery::Class()}},
      {"Data Controls", {&TDBEdit::Class(), &TDBGrid::Class()}},
      {"Dialogs",
       {&TOpenDialog::Class(), &TSaveDialog::Class(), &TFontDialog::Class(),
        &TColorDialog::Class()}},
      {"Internet", {&TClientSocket::Class()}},
  };
  for (const auto& [page, classes] : pages) RegisterComponents(page, classes);
  RegisterMenuEditor();
}

}  // namespace ide
