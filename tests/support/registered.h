// The package's classes, registered as its registration entry does.
#pragma once

#include "controls/Qeltbackground.h"
#include "controls/Qeltbutton.h"
#include "controls/Qeltgauge.h"
#include "controls/Qelthint.h"
#include "controls/Qeltlabel.h"
#include "controls/Qeltspinedit.h"
#include "core/Qelclasses.h"
#include "core/Qelclasses2.h"
#include "core/Qeltstoredata.h"
#include "data/Qeltdbascii.h"
#include "host/rtl/classregistry.h"
#include "mail/Qeltiemails.h"
#include "mail/Qeltmapimail.h"
#include "mail/Qeltquickmail.h"
#include "services/Qeltformsaver.h"
#include "services/Qeltmrumenu.h"
#include "services/Qeltonlyone.h"
#include "services/Qeltsystemtray.h"
#include "shell/Qeltexplorertree.h"

inline void RegisterAll() {
  vcl::RegisterClasses({&qel::TQELFont3D::Class(),     &qel::TQELGradient::Class(),
                        &qel::TQELTexture::Class(),    &qel::TQELFrame::Class(),
                        &qel::TQELAbout::Class(),      &qel::TQELGlyph::Class(),
                        &qel::TQELBrushFill::Class(),  &qel::TQELBackground::Class(),
                        &qel::TQELButton::Class(),     &qel::TQELLabel::Class(),
                        &qel::TQELGauge::Class(),      &qel::TQELHint::Class(),
                        &qel::TQELSpinButton::Class(), &qel::TQELSpinEdit::Class(),
                        &qel::TQELTimer32::Class(),    &qel::TQELButtonDetails::Class(),
                        &qel::TQELOnlyOne::Class(),    &qel::TQELSystemTray::Class(),
                        &qel::TQELRegistry::Class(),   &qel::TQELIniFile::Class(),
                        &qel::TQELDataStore::Class(),  &qel::TQELStoreData::Class(),
                        &qel::TQELFormSaver::Class(),  &qel::TQELSMTPMail::Class(),
                        &qel::TQELPOPMail::Class(),    &qel::TQELMRUItem::Class(),
                        &qel::TQELMRUMenu::Class(),    &qel::TQELExplorerTree::Class(),
                        &qel::TQELDBAscii::Class(),    &qel::TQELMapiMail::Class(),
                        &qel::TQELQuickMail::Class()});
}
