// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/comingforms.h"

#include "controls/formcatalogue.h"

namespace zephira {

namespace {

constexpr QStringView comingForms[] = {
    u"ColorPick",     u"FormWizard",     u"ImageMap",      u"ImageWizard",    u"InsertHTMLDlg", u"InsertTableDlg",
    u"SpellChecker1", u"doctype",        u"frmChar",       u"frmColorSpy",    u"frmDocSize",    u"frmFramesWiz",
    u"frmMeta",       u"frmOptions",     u"frmRedirect",   u"frmTagEdit",     u"frmTags",       u"frmascii",
    u"frmcsv",        u"frmdropdown",    u"frmfa",         u"frmiframe",      u"frminsbreak",   u"frmlinkextract",
    u"frmlinkwiz",    u"frmmainftp",     u"frmtextthtml",  u"frmthcon",       u"frmvalidate",   u"frmvbwiz",
    u"frmwebdisp",    u"frmwizMarquee",  u"frmwizcookie",  u"oebrowser",
};

} // namespace

void announceComingForms(FormCatalogue &catalogue)
{
    for (const QStringView form : comingForms)
        catalogue.announce(form.toString());
}

} // namespace zephira
