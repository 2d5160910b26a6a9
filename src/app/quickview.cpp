// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/quickview.h"

#include "core/quickviewer.h"
#include "desktop/modalformopener.h"

using namespace Qt::StringLiterals;

namespace zephira {

QuickViewer *quickViewer(ModalFormOpener &forms)
{
    const QString name = u"frmqv"_s;
    forms.openModeless(name);
    return dynamic_cast<QuickViewer *>(forms.openForm(name));
}

} // namespace zephira
