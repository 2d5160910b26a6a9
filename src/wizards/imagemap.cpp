// SPDX-License-Identifier: GPL-3.0-or-later
#include "wizards/imagemap.h"

#include "core/editingcontrol.h"
#include "core/filelookup.h"
#include "core/twips.h"
#include "ui_imagemap.h"
#include "widgets/droppedfile.h"
#include "widgets/fieldlookups.h"
#include "widgets/picturefile.h"
#include "wizards/longfields.h"
#include "wizards/mapmarkup.h"
#include "wizards/mapobjects.h"

#include <QActionGroup>
#include <QDragEnterEvent>
#include <QMenu>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>

#include <functional>
#include <initializer_list>
#include <utility>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

constexpr QStringView pictureFilter = u"JPEG files|*.jpg|GIF files|*.GIF|Bitmap files|*.BMP|All Files|*.*";

/// From the left and the top of the screen, in twips.
constexpr int distanceFromCorner = 10;

/// The numbers of the toolbar's buttons, which count separators and begin with 1.
enum Button {
    PolygonButton = 1,
    CircleButton = 3,
    ClearButton = 5,
    AcceptButton = 7,
    MakeHtmlButton = 9,
    BackButton = 11
};

MapPoint pointAt(QPoint place)
{
    return {static_cast<float>(place.x()), static_cast<float>(place.y())};
}

} // namespace

struct ImageMap::Row {
    QCheckBox *shown;
    QRadioButton *picked;
    QLineEdit *text;
    QLineEdit *link;
    QPushButton *browse;
    QLineEdit *alternative;
};

ImageMap::ImageMap(const AppContext &context, const EditorFactory &makeEditor, std::shared_ptr<FileLookup> lookup,
                   QWidget *owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::ImageMap>()), m_context(context), m_lookup(std::move(lookup))
{
    m_ui->setupUi(this);
    acceptAnyText(*this);
    addMenus();
    addButtons();
    addEditor(makeEditor);
    connectPicture();
    connectRows();
    const QList<QLineEdit *> boxes = findChildren<QLineEdit *>();
    for (QLineEdit *box : boxes)
        box->installEventFilter(this);
    alignControls();
    showDrawing();
    moveToCorner();
    m_ui->Picture1->setFocus();
}

ImageMap::~ImageMap() = default;

void ImageMap::addMenus()
{
    struct Entry {
        QStringView name;
        QStringView caption;
        QStringView keys;
        QStringView icon;
    };
    const auto add = [this](QMenu &menu, const Entry &entry, const std::function<void()> &run) {
        QAction *action = menu.addAction(QIcon::fromTheme(entry.icon.toString()), entry.caption.toString());
        action->setObjectName(entry.name);
        action->setShortcut(QKeySequence(entry.keys.toString(), QKeySequence::PortableText));
        connect(action, &QAction::triggered, this, run);
    };
    auto *file = m_ui->menubar->addMenu(u"File"_s);
    file->setObjectName(u"MenuFile"_s);
    add(*file, {u"SubMenuOpen", u"Open...", u"Ctrl+O", u"document-open"}, [this] { browse(); });
    file->addSeparator()->setObjectName(u"Separator1"_s);
    add(*file, {u"SubMenuExit", u"Exit", {}, u"application-exit"}, [this] { close(); });

    auto *edit = m_ui->menubar->addMenu(u"Edit"_s);
    edit->setObjectName(u"MenuEdit"_s);
    const auto addEdit = [&](const Entry &entry, EditorCommand command) {
        add(*edit, entry, [this, command] { m_editor.control->executeCmd(command); });
    };
    addEdit({u"mnucopy", u"Copy", u"Ctrl+C", u"edit-copy"}, EditorCommand::CopyByKey);
    addEdit({u"mnuCut", u"Cut", u"Ctrl+X", u"edit-cut"}, EditorCommand::CutByKey);
    addEdit({u"mnusa", u"Select All", u"Ctrl+A", u"edit-select-all"}, EditorCommand::SelectAll);
    addEdit({u"mnupaste", u"Paste", u"Ctrl+V", u"edit-paste"}, EditorCommand::PasteByKey);
}

void ImageMap::addButtons()
{
    struct ButtonRow {
        QStringView caption;
        QStringView icon;
        QStringView tip;
    };
    static constexpr ButtonRow rows[] = {
        {u"Polygon", u"draw-polygon", u"Polygons, drawn side by side"},
        {u"Rectangle", u"draw-rectangle", u"Rectangles, drawn from corner to corner"},
        {u"Circle", u"draw-ellipse", u"Circles, drawn from their centers"},
        {},
        {u"Clear", u"edit-clear", u"Clear the area that is picked"},
        {},
        {u"Accept", u"dialog-ok-apply", u"Accept the coordinates of the area, and go on to the next"},
        {},
        {u"Make HTML", u"text-html", u"Make HTML of the finished picture and map"},
        {},
        {u"Back", u"go-previous", u"Back to the picture"},
    };
    auto *tools = new QActionGroup(this);
    for (const ButtonRow &row : rows) {
        if (row.caption.isEmpty()) {
            m_ui->Toolbar1->addSeparator();
            continue;
        }
        QAction *action = m_ui->Toolbar1->addAction(QIcon::fromTheme(row.icon.toString()), row.caption.toString());
        action->setToolTip(row.tip.toString());
        action->setCheckable(true);
        if (m_ui->Toolbar1->actions().size() <= CircleButton)
            tools->addAction(action);
        // The buttons of a tool bar can't be reached by the Tab key by themselves, and these commands have no other keys.
        m_ui->Toolbar1->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
        connect(action, &QAction::triggered, this, &ImageMap::followButtons);
    }
    button(PolygonButton).setChecked(true);
    button(BackButton).setEnabled(false);
}

void ImageMap::addEditor(const EditorFactory &makeEditor)
{
    m_editor = makeEditor(this);
    m_editor.widget->setObjectName(u"Text6"_s);
    m_editor.widget->setAccessibleName(tr("Finished picture and map"));
    m_editor.widget->setToolTip(tr("Copy the text from here. Ctrl+F6 leaves it."));
    m_editor.control->setLanguage(u"HTML"_s);
    m_ui->drawingLayout->addWidget(m_editor.widget, 0, 0, 2, 2);
    m_editor.widget->hide();
    // It takes the place of the picture.
    setTabOrder(m_ui->Picture1, m_editor.widget);
    // The editor uses the Tab key itself.
    connect(new QShortcut(Qt::CTRL | Qt::Key_F6, this), &QShortcut::activated, this, [this] { focusNextChild(); });
    connect(new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_F6, this), &QShortcut::activated, this,
            [this] { focusPreviousChild(); });
}

void ImageMap::connectPicture()
{
    MapPicture *picture = m_ui->Picture1;
    picture->setDrawing(&m_drawing);
    makeMapObjects(m_drawing, picture);
    connect(picture, &MapPicture::pressed, this, [this](Qt::MouseButton button, QPoint place) {
        m_drawing.press(button, pointAt(place));
        showDrawing();
    });
    connect(picture, &MapPicture::moved, this, [this](Qt::MouseButtons held, QPoint place) {
        showPlace(place);
        m_drawing.move(held, pointAt(place));
        if (held != Qt::NoButton)
            showDrawing();
    });
    connect(picture, &MapPicture::released, this, [this](Qt::MouseButton button, QPoint place) {
        m_drawing.release(button, pointAt(place));
        showDrawing();
    });
    connect(picture, &MapPicture::stepped, this, [this](QPoint place) {
        showPlace(place);
        m_ui->Picture1->setAccessibleDescription(m_ui->lblPlace->text());
        m_ui->HScroll1->makeVisible(place.x(), m_ui->MainPic->width());
        m_ui->VScroll1->makeVisible(place.y(), m_ui->MainPic->height());
    });
    const auto movePicture = [this] { m_ui->Picture1->move(m_ui->HScroll1->place(), m_ui->VScroll1->place()); };
    connect(m_ui->HScroll1, &PictureBar::placeChanged, this, movePicture);
    connect(m_ui->VScroll1, &PictureBar::placeChanged, this, movePicture);
    connect(m_ui->MainPic, &MapView::resized, this, [this, movePicture] {
        makeBarsReady();
        movePicture();
    });
    connect(m_ui->MainPic, &MapView::wheeled, this, [this](QPoint pixels) {
        m_ui->HScroll1->setPlace(m_ui->HScroll1->place() + pixels.x());
        m_ui->VScroll1->setPlace(m_ui->VScroll1->place() + pixels.y());
    });
    connect(m_ui->Command1, &QToolButton::clicked, this, [this] {
        m_ui->HScroll1->setPlace(0);
        m_ui->VScroll1->setPlace(0);
        m_ui->MainPic->update();
    });
}

void ImageMap::connectRows()
{
    for (int area = 0; area < MapDrawing::areaCount; ++area) {
        const Row controls = row(area);
        const auto pick = [this, area](bool on) {
            if (on)
                m_drawing.pick(area);
        };
        // A click on the area that is picked already picks it again.
        connect(controls.picked, &QRadioButton::toggled, this, pick);
        connect(controls.picked, &QRadioButton::clicked, this, pick);
        connect(controls.shown, &QCheckBox::toggled, this, [this, area](bool on) {
            m_drawing.show(area, on);
            showDrawing();
        });
        offerFiles(controls.browse, controls.link, m_context, m_lookup);
        connect(controls.text, &QLineEdit::textChanged, this,
                [this, area](const QString &text) { m_drawing.setText(area, text); });
    }
}

ImageMap::Row ImageMap::row(int area) const
{
    const QString number = u"_%1"_s.arg(area);
    return {findChild<QCheckBox *>(u"Check1"_s + number),        findChild<QRadioButton *>(u"Option1"_s + number),
            findChild<QLineEdit *>(u"Text2"_s + number),         findChild<QLineEdit *>(u"Text3"_s + number),
            findChild<QPushButton *>(u"browseText3"_s + number), findChild<QLineEdit *>(u"Text5"_s + number)};
}

void ImageMap::alignControls()
{
    for (int area = 0; area < MapDrawing::areaCount; ++area) {
        const Row controls = row(area);
        controls.shown->setMinimumHeight(controls.text->sizeHint().height());
        controls.picked->setMinimumHeight(controls.text->sizeHint().height());
    }
    // The button fills the corner between the scroll bars, which large letters don't enlarge.
    const QSize corner(m_ui->VScroll1->sizeHint().width(), m_ui->HScroll1->sizeHint().height());
    QFont arrow = m_ui->Command1->font();
    arrow.setPixelSize(corner.height() * 2 / 3);
    m_ui->Command1->setFont(arrow);
    m_ui->Command1->setFixedSize(corner);
}

void ImageMap::showDrawing()
{
    for (int area = 0; area < MapDrawing::areaCount; ++area) {
        const Row controls = row(area);
        const QSignalBlocker quietShown(controls.shown);
        const QSignalBlocker quietPicked(controls.picked);
        controls.shown->setEnabled(m_drawing.isAccepted(area));
        controls.shown->setChecked(m_drawing.isShown(area));
        if (area == m_drawing.currentArea())
            controls.picked->setChecked(true);
        // Setting the same text again would move the caret.
        if (controls.text->text() != m_drawing.text(area))
            controls.text->setText(m_drawing.text(area));
    }
    m_ui->Picture1->update();
}

void ImageMap::showPlace(QPoint place)
{
    m_ui->lblPlace->setText(u"%1, %2"_s.arg(place.x()).arg(place.y()));
}

void ImageMap::makeBarsReady()
{
    const QSize inner = m_ui->MainPic->size();
    m_ui->HScroll1->setViewport(inner.width());
    m_ui->VScroll1->setViewport(inner.height());
    m_ui->Picture1->fit(inner);
}

void ImageMap::moveToCorner()
{
    const int distance = toPixels(distanceFromCorner);
    const QScreen &screen = *(parentWidget() ? parentWidget() : this)->screen();
    resize(size().boundedTo(screen.availableSize()));
    move(screen.geometry().topLeft() + QPoint(distance, distance));
}

void ImageMap::browse()
{
    if (const auto file = m_lookup->choose(m_context, {}, pictureFilter.toString()))
        openPicture(*file);
}

void ImageMap::openPicture(const QString &file)
{
    const Result<QPixmap> picture = readPicture(m_context.files, file);
    if (!picture)
        return;
    m_ui->Picture1->setPicture(picture.value());
    m_ui->Text4->setText(file);
    m_ui->Text1->setText(file);
    m_ui->HScroll1->setPlace(0);
    m_ui->VScroll1->setPlace(0);
}

bool ImageMap::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDrag = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
    if (!isDrag && event->type() != QEvent::Drop)
        return QDialog::eventFilter(watched, event);
    // All three are drops to be, or drops.
    auto *drop = static_cast<QDropEvent *>(event);
    if (droppedFile(drop->mimeData()).isEmpty())
        return QDialog::eventFilter(watched, event);
    // A text box would take the file's address as text.
    if (isDrag)
        drop->acceptProposedAction();
    else
        dropEvent(drop);
    return true;
}

void ImageMap::dragEnterEvent(QDragEnterEvent *event)
{
    if (!droppedFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ImageMap::dropEvent(QDropEvent *event)
{
    const QString file = droppedFile(event->mimeData());
    if (file.isEmpty())
        return;
    event->acceptProposedAction();
    openPicture(file);
}

QAction &ImageMap::button(int number) const
{
    return *m_ui->Toolbar1->actions().at(number - 1);
}

bool ImageMap::takeButton(int number) const
{
    QAction &action = button(number);
    const bool isDown = action.isChecked();
    action.setChecked(false);
    return isDown;
}

void ImageMap::followButtons()
{
    if (takeButton(ClearButton))
        m_drawing.clear();
    if (takeButton(AcceptButton))
        m_drawing.accept();
    if (takeButton(MakeHtmlButton))
        makeHtml();
    if (takeButton(BackButton))
        goBack();
    for (int number = PolygonButton; number <= CircleButton; ++number) {
        if (button(number).isChecked())
            m_drawing.chooseTool(static_cast<MapTool>(number));
    }
    showDrawing();
}

ImageMapFields ImageMap::fields() const
{
    ImageMapFields result{m_ui->Text4->text(), m_ui->Text1->text(), m_ui->Picture1->pictureSize()};
    for (int area = 0; area < MapDrawing::areaCount; ++area) {
        const Row controls = row(area);
        result.areas[area] = {controls.text->text(), controls.link->text(), controls.alternative->text()};
    }
    return result;
}

void ImageMap::makeHtml()
{
    m_editor.control->setText(imageMapMarkup(fields()));
    showText(true);
    m_editor.widget->setFocus();
}

void ImageMap::goBack()
{
    showText(false);
    m_ui->Picture1->setFocus();
}

void ImageMap::showText(bool shown)
{
    // Shown before the others are hidden, or the other way round, the parts would need room for both.
    const std::initializer_list<QWidget *> drawingParts{m_ui->MainPic, m_ui->Picture1, m_ui->HScroll1, m_ui->VScroll1,
                                                        m_ui->Command1};
    if (shown) {
        for (QWidget *part : drawingParts)
            part->hide();
    }
    m_editor.widget->setVisible(shown);
    if (!shown) {
        for (QWidget *part : drawingParts)
            part->show();
    }
    for (int number = PolygonButton; number < BackButton; ++number)
        button(number).setEnabled(!shown);
    button(BackButton).setEnabled(shown);
}

QList<bool> ImageMap::lineUsed() const
{
    QList<bool> used;
    for (int line = 0; line < MapDrawing::flagCount; ++line)
        used.append(m_drawing.isLineUsed(line));
    return used;
}

} // namespace zephira
