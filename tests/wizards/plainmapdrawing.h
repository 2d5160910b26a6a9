// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace zephira {

/// The drawing of image maps once more, as plainly as it can be told: numbered arrays, one statement after the other.
struct PlainMapDrawing {
    float x1[42] = {};
    float y1[42] = {};
    float x2[42] = {};
    float y2[42] = {};
    bool lineVisible[42] = {};
    bool lineUsed[61] = {};
    int shapeKind[6] = {};
    float shapeLeft[6] = {};
    float shapeTop[6] = {};
    float shapeWidth[6] = {};
    float shapeHeight[6] = {};
    bool shapeVisible[6] = {};
    QString text[6] = {QStringLiteral(" ")};
    bool enabled[6] = {};
    bool ticked[6] = {};
    int currentArea = 0;
    int currentLine = 0;
    int moved = 0;
    int tool = 1;
    int anchorX = 0;
    int anchorY = 0;
    int circleX = 0;
    int circleY = 0;
    int circleR = 0;

    int firstLine() const { return currentArea * 7; }
    int lastLine() const { return currentArea * 7 + 6; }

    static int whole(float number)
    {
        const double below = std::floor(static_cast<double>(number));
        const double rest = static_cast<double>(number) - below;
        double nearest = rest < 0.5 ? below : below + 1;
        if (rest == 0.5)
            nearest = std::fmod(below, 2) == 0 ? below : below + 1;
        return static_cast<int>(std::min(std::max(nearest, -32768.0), 32767.0));
    }
    static float distance(float a, int b)
    {
        return a < static_cast<float>(b) ? static_cast<float>(b) - a : a - static_cast<float>(b);
    }
    /// Enough for the numbers of the test, which have at most two binary decimals.
    static QString number(float value) { return QString::number(static_cast<double>(value), 'g', 12); }

    void press(bool left, float x, float y)
    {
        if (!left)
            return;
        if (currentLine < lastLine()) {
            moved = 0;
            if (tool == 1) {
                if (currentLine == firstLine()) {
                    x1[currentLine] = x;
                    y1[currentLine] = y;
                } else {
                    x1[currentLine] = x2[currentLine - 1];
                    y1[currentLine] = y2[currentLine - 1];
                }
            } else {
                anchorX = whole(x);
                anchorY = whole(y);
                shapeKind[currentArea] = tool == 2 ? 0 : 3;
                shapeVisible[currentArea] = true;
                shapeLeft[currentArea] = x;
                shapeTop[currentArea] = y;
                shapeWidth[currentArea] = 0;
                shapeHeight[currentArea] = 0;
            }
        }
    }

    void move(bool left, float x, float y)
    {
        if (!left)
            return;
        if (currentLine < lastLine()) {
            moved = 1;
            if (tool == 1) {
                x2[currentLine] = x;
                y2[currentLine] = y;
                lineVisible[currentLine] = true;
            }
            if (tool == 2) {
                shapeLeft[currentArea] = x < static_cast<float>(anchorX) ? x : static_cast<float>(anchorX);
                shapeTop[currentArea] = y < static_cast<float>(anchorY) ? y : static_cast<float>(anchorY);
                shapeWidth[currentArea] = distance(x, anchorX);
                shapeHeight[currentArea] = distance(y, anchorY);
            }
            if (tool == 3) {
                const float r = distance(x, anchorX);
                shapeLeft[currentArea] = static_cast<float>(anchorX) - r;
                shapeTop[currentArea] = static_cast<float>(anchorY) - r;
                shapeWidth[currentArea] = r + r;
                shapeHeight[currentArea] = r + r;
            }
        }
    }

    void release(bool left, float x, float)
    {
        if (!left)
            return;
        if (currentLine < lastLine() && moved == 1) {
            if (tool == 1) {
                x1[lastLine()] = x2[currentLine];
                y1[lastLine()] = y2[currentLine];
                x2[lastLine()] = x1[firstLine()];
                y2[lastLine()] = y1[firstLine()];
                lineVisible[lastLine()] = true;
                lineVisible[currentLine] = true;
                lineUsed[currentLine] = true;
                currentLine = currentLine + 1;
                moved = 0;
            }
            if (tool == 3) {
                circleX = anchorX;
                circleY = anchorY;
                circleR = whole(distance(x, anchorX));
            }
        }
    }

    void pick(int area)
    {
        currentArea = area;
        currentLine = area * 7;
    }

    void hide()
    {
        for (int i = firstLine(); i <= lastLine(); i++)
            lineVisible[i] = false;
        currentLine = firstLine();
        shapeVisible[currentArea] = false;
    }

    void clickShow(int area)
    {
        if (text[area].mid(12, 1) == QStringLiteral("P")) {
            for (int i = area * 7; i <= area * 7 + 6; i++) {
                if (!ticked[area])
                    lineVisible[i] = false;
                else if (lineUsed[i])
                    lineVisible[i] = true;
            }
        } else {
            shapeVisible[area] = ticked[area];
        }
    }

    void tick(int area, bool on)
    {
        if (ticked[area] == on)
            return;
        ticked[area] = on;
        clickShow(area);
    }

    void accept()
    {
        const int area = currentArea;
        const QString quote = QStringLiteral("\"");
        const QString comma = QStringLiteral(",");
        if (tool == 3) {
            text[area] = QStringLiteral("<AREA SHAPE=CIRCLE COORDS=") + quote + QString::number(circleX) + comma
                + QString::number(circleY) + comma + QString::number(circleR) + quote;
        }
        if (tool == 2) {
            text[area] = QStringLiteral("<AREA SHAPE=RECT COORDS=") + quote + number(shapeLeft[area]) + comma
                + number(shapeTop[area]) + comma + number(shapeLeft[area] + shapeWidth[area]) + comma
                + number(shapeTop[area] + shapeHeight[area]) + quote;
        }
        if (tool == 1) {
            QString coords = QStringLiteral("<AREA SHAPE=POLY COORDS=") + quote;
            lineUsed[lastLine()] = true;
            for (int i = firstLine(); i <= lastLine(); i++) {
                if (lineUsed[i])
                    coords = coords + number(x1[i]) + comma + number(y1[i]) + comma;
            }
            text[area] = coords.left(coords.size() - 1) + quote;
        }
        hide();
        enabled[area] = true;
        tick(area, true);
        if (area == 5)
            pick(5);
        else
            pick(area + 1);
    }

    void clear()
    {
        text[currentArea] = QString();
        for (int i = firstLine(); i <= lastLine(); i++) {
            x1[i] = 0;
            x2[i] = 0;
            y1[i] = 0;
            y2[i] = 0;
            lineVisible[i] = false;
            lineUsed[i] = false;
        }
        currentLine = firstLine();
        shapeVisible[currentArea] = false;
        tick(currentArea, false);
        enabled[currentArea] = false;
    }
};

} // namespace zephira
