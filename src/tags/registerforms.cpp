// SPDX-License-Identifier: GPL-3.0-or-later
#include "tags/registerforms.h"

#include "core/formcatalogue.h"
#include "tags/frmtagedit.h"
#include "tags/frmtags.h"

using namespace Qt::StringLiterals;

namespace zephira::tags {

void registerForms(FormCatalogue &catalogue)
{
    const auto memory = std::make_shared<TagEditorMemory>();
    catalogue.add(u"frmTagEdit"_s, [memory](const AppContext &context, QWidget *owner) -> QWidget * {
        return new frmTagEdit(context, owner, memory);
    });
    catalogue.add<frmTags>(u"frmTags"_s);
}

} // namespace zephira::tags
