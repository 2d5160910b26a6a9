// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/appcontext.h"
#include "core/editorfactory.h"
#include "wizards/mapdrawing.h"

#include <QDialog>
#include <QList>

#include <memory>

class QAction;

namespace zephira {

namespace Ui {
class ImageMap;
}

class FileLookup;
struct ImageMapFields;

/// The image map creator: draws up to six areas on a picture, gives each a link and an alternative text, and shows the
/// finished markup in an editor of its own, from which it can be copied. The document isn't touched.
class ImageMap final : public QDialog
{
    Q_OBJECT
    // The state of the drawing. An area owns the lines from FirstLine to LastLine, the closing side.
    Q_PROPERTY(int CurrentArea READ currentArea)
    Q_PROPERTY(int FirstLine READ firstLine)
    Q_PROPERTY(int CurrentLine READ currentLine)
    Q_PROPERTY(int LastLine READ lastLine)
    Q_PROPERTY(int Moved READ moved)
    /// 1 polygon, 2 rectangle, 3 circle.
    Q_PROPERTY(int Tool READ tool)
    // Where the mouse was pressed for a rectangle or a circle.
    Q_PROPERTY(int StartX READ startX)
    Q_PROPERTY(int StartY READ startY)
    Q_PROPERTY(int AnchorX READ startX)
    Q_PROPERTY(int AnchorY READ startY)
    // The last circle that was fixed.
    Q_PROPERTY(int CircleX READ circleX)
    Q_PROPERTY(int CircleY READ circleY)
    Q_PROPERTY(int CircleR READ circleR)
    Q_PROPERTY(QList<bool> LineUsed READ lineUsed)
    Q_PROPERTY(QString Quote READ quote CONSTANT)

public:
    ImageMap(const AppContext &context, const EditorFactory &makeEditor, std::shared_ptr<FileLookup> lookup,
             QWidget *owner);
    ~ImageMap() override;

    int currentArea() const { return m_drawing.currentArea(); }
    int firstLine() const { return m_drawing.firstLine(); }
    int currentLine() const { return m_drawing.currentLine(); }
    int lastLine() const { return m_drawing.lastLine(); }
    int moved() const { return m_drawing.hasMoved() ? 1 : 0; }
    int tool() const { return static_cast<int>(m_drawing.tool()); }
    int startX() const { return m_drawing.start().x; }
    int startY() const { return m_drawing.start().y; }
    int circleX() const { return m_drawing.circle().centre.x; }
    int circleY() const { return m_drawing.circle().centre.y; }
    int circleR() const { return m_drawing.circle().radius; }
    QList<bool> lineUsed() const;
    static QString quote() { return QStringLiteral("\""); }

protected:
    /// Files that are dropped on the window or one of its text boxes are opened.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    /// The controls of an area.
    struct Row;

    void addMenus();
    void addButtons();
    void addEditor(const EditorFactory &makeEditor);
    void connectPicture();
    void connectRows();
    Row row(int area) const;
    /// Gives the controls of a row the same height, and the button in the corner the size of the corner.
    void alignControls();
    /// Shows the state of the drawing in the picture and in the table of areas.
    void showDrawing();
    void showPlace(QPoint place);
    void makeBarsReady();
    void moveToCorner();
    void browse();
    /// Opens a picture; without effect if it can't be read.
    void openPicture(const QString &file);
    /// Does what the toolbar buttons that are down say.
    void followButtons();
    /// A button of the toolbar; its number counts the separators, too, and begins with 1.
    QAction &button(int number) const;
    /// Releases a button, and returns whether it was down.
    bool takeButton(int number) const;
    ImageMapFields fields() const;
    void makeHtml();
    void goBack();
    void showText(bool shown);

    const std::unique_ptr<Ui::ImageMap> m_ui;
    const AppContext m_context;
    const std::shared_ptr<FileLookup> m_lookup;
    EditorView m_editor;
    MapDrawing m_drawing;
};

} // namespace zephira
