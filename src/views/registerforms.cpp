// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/registerforms.h"

#include "core/formcatalogue.h"
#include "views/frmqv.h"
#include "views/frmwebdisp.h"
#include "views/inserthtmldlg.h"
#include "views/inserttabledlg.h"

using namespace Qt::StringLiterals;

namespace zephira::views {

void registerForms(FormCatalogue &catalogue, const ViewerFactory &makeViewer, const PageFetcherLoader &loadFetcher)
{
    catalogue.add(u"frmqv"_s, [makeViewer](const AppContext &context, QWidget *owner) {
        return new frmqv(context, makeViewer, owner);
    });
    catalogue.add(u"frmwebdisp"_s, [makeViewer, loadFetcher](const AppContext &context, QWidget *owner) {
        return new frmwebdisp(context, makeViewer, loadFetcher, owner);
    });
    catalogue.add<InsertHTMLDlg>(u"InsertHTMLDlg"_s);
    catalogue.add<InsertTableDlg>(u"InsertTableDlg"_s);
}

} // namespace zephira::views
