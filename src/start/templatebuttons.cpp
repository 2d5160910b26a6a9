// SPDX-License-Identifier: GPL-3.0-or-later
#include "start/templatebuttons.h"

#include "start/framepicture.h"

#include <QGridLayout>
#include <QPushButton>

namespace zephira {

namespace {

constexpr int textColumns = 3;
constexpr int pictureColumns = 4;
constexpr QSize pictureSize(104, 78);

} // namespace

void TemplateButtons::setPage(int page)
{
    m_page = static_cast<TemplatePage>(page);
    auto *grid = new QGridLayout(this);
    for (const TemplateButton &button : templateButtons()) {
        if (button.page == m_page)
            add(button);
    }
    // The buttons stay together at the top of a page that is larger than needed.
    grid->setRowStretch(grid->rowCount(), 1);
}

void TemplateButtons::add(const TemplateButton &button)
{
    auto *grid = static_cast<QGridLayout *>(layout());
    const bool pictured = m_page == TemplatePage::Frames;
    const int columns = pictured ? pictureColumns : textColumns;
    const QString file = button.file.toString();

    auto *control = new QPushButton(button.caption.toString(), this);
    control->setObjectName(button.name);
    control->setAutoDefault(false);
    control->setAccessibleName(control->text().trimmed());
    control->setToolTip(file.isEmpty() ? tr("Keeps the text and only sets the language") : file);
    if (pictured) {
        const FramePicture picture = framePicture(file, palette(), pictureSize);
        control->setIcon(picture.icon);
        control->setIconSize(pictureSize);
        control->setAccessibleName(picture.description);
        control->setToolTip(picture.description);
    } else {
        control->setMinimumHeight(2 * control->sizeHint().height());
    }
    const int index = grid->count();
    grid->addWidget(control, index / columns, index % columns);
    connect(control, &QPushButton::clicked, this, [this, &button] { Q_EMIT chosen(button); });
}

} // namespace zephira
