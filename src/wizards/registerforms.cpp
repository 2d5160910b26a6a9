// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/registerforms.h"

#include "core/filelookup.h"
#include "core/formcatalogue.h"
#include "wizards/doctype.h"
#include "wizards/formwizard.h"
#include "wizards/frmaddchoice.h"
#include "wizards/frmcsv.h"
#include "wizards/frmdropdown.h"
#include "wizards/frmframeswiz.h"
#include "wizards/frmiframe.h"
#include "wizards/frminsbreak.h"
#include "wizards/frmlinkwiz.h"
#include "wizards/frmloadtags.h"
#include "wizards/frmmeta.h"
#include "wizards/frmredirect.h"
#include "wizards/frmsavetags.h"
#include "wizards/frmtable.h"
#include "wizards/frmtables.h"
#include "wizards/frmvbwiz.h"
#include "wizards/frmwizcookie.h"
#include "wizards/frmwizmarquee.h"
#include "wizards/imagemap.h"
#include "wizards/imagewizard.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace zephira::wizards {

namespace {

/// The factory of a form in which files can be looked up.
template<typename Form>
FormCatalogue::Factory with(const std::shared_ptr<FileLookup> &lookup)
{
    return
        [lookup](const AppContext &context, QWidget *owner) -> QWidget * { return new Form(context, owner, lookup); };
}

} // namespace

void registerForms(FormCatalogue &catalogue)
{
    const auto files = std::make_shared<FileLookup>();
    catalogue.add(u"FormWizard"_s, with<FormWizard>(files));
    catalogue.add(u"ImageWizard"_s, with<ImageWizard>(files));
    catalogue.add<doctype>(u"doctype"_s);
    catalogue.add(u"frmFramesWiz"_s, with<frmFramesWiz>(files));
    catalogue.add<frmMeta>(u"frmMeta"_s);
    catalogue.add<frmRedirect>(u"frmRedirect"_s);
    catalogue.add<frmTable>(u"frmTable"_s);
    catalogue.add<frmTables>(u"frmTables"_s);
    catalogue.add<frmaddchoice>(u"frmaddchoice"_s);
    catalogue.add<frmcsv>(u"frmcsv"_s);
    catalogue.add<frmdropdown>(u"frmdropdown"_s);
    catalogue.add(u"frmiframe"_s, with<frmiframe>(files));
    catalogue.add<frminsbreak>(u"frminsbreak"_s);
    catalogue.add(u"frmlinkwiz"_s, with<frmlinkwiz>(files));
    catalogue.add<frmloadtags>(u"frmloadtags"_s);
    catalogue.add<frmsavetags>(u"frmsavetags"_s);
    catalogue.add<frmvbwiz>(u"frmvbwiz"_s);
    catalogue.add<frmwizMarquee>(u"frmwizMarquee"_s);
    catalogue.add<frmwizcookie>(u"frmwizcookie"_s);
}

void registerImageMap(FormCatalogue &catalogue, const EditorFactory &makeEditor)
{
    const auto files = std::make_shared<FileLookup>();
    catalogue.add(u"ImageMap"_s, [makeEditor, files](const AppContext &context, QWidget *owner) {
        return new ImageMap(context, makeEditor, files, owner);
    });
}

} // namespace zephira::wizards
