// SPDX-License-Identifier: GPL-3.0-or-later
#include "assist/colourtext.h"

#include <QList>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zephira {

namespace {

/// Longer lines aren't looked at: no person writes them.
constexpr qsizetype longestLine = 4000;

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr bool isHex(char c)
{
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

constexpr bool isWordPart(char c)
{
    return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-' || c == '_' || c == '$'
        || static_cast<unsigned char>(c) >= 0x80;
}

bool takesColours(QByteArrayView property)
{
    const QByteArray name = property.toByteArray().toLower();
    static constexpr QByteArrayView parts[] = {"color", "background", "border", "outline",    "shadow",
                                               "fill",  "stroke",     "rule",   "decoration", "gradient"};
    static constexpr QByteArrayView attributes[] = {"text", "link", "vlink", "alink", "filter"};
    return name.startsWith("--") || name.startsWith('$') || std::ranges::find(attributes, name) != std::end(attributes)
        || std::ranges::any_of(parts, [&](QByteArrayView part) { return name.contains(part); });
}

/// The numbers in the parentheses of rgb() or hsl(): where each stands, and its value as a share of `whole` if it is a
/// percentage.
struct Number {
    qsizetype start = 0;
    qsizetype end = 0;
    double value = 0;
    bool isPercent = false;
};

QList<Number> numbersIn(QByteArrayView text)
{
    QList<Number> numbers;
    for (qsizetype at = 0; at < text.size();) {
        if (!isDigit(text[at]) && text[at] != '.' && text[at] != '-') {
            ++at;
            continue;
        }
        Number number{at, at};
        while (number.end < text.size()
               && (isDigit(text[number.end]) || text[number.end] == '.' || text[number.end] == '-'))
            ++number.end;
        number.value = text.sliced(at, number.end - at).toDouble();
        number.isPercent = number.end < text.size() && text[number.end] == '%';
        number.end += number.isPercent;
        at = number.end;
        numbers.append(number);
    }
    return numbers;
}

bool isHsl(QByteArrayView text)
{
    return text.first(std::min<qsizetype>(text.size(), 3)).compare("hsl", Qt::CaseInsensitive) == 0;
}

std::optional<QColor> functionColour(QByteArrayView text)
{
    const QList<Number> numbers = numbersIn(text);
    if (numbers.size() < 3 || numbers.size() > 4)
        return std::nullopt;
    const auto share = [](double value) { return std::clamp(value, 0.0, 1.0); };
    double opacity = 1;
    if (numbers.size() == 4)
        opacity = share(numbers[3].isPercent ? numbers[3].value / 100 : numbers[3].value);
    QColor colour;
    if (isHsl(text)) {
        const double hue = numbers[0].value / 360;
        colour = QColor::fromHslF(static_cast<float>(hue - std::floor(hue)),
                                  static_cast<float>(share(numbers[1].value / 100)),
                                  static_cast<float>(share(numbers[2].value / 100)));
    } else {
        const auto channel = [&](int i) {
            return static_cast<float>(share(numbers[i].value / (numbers[i].isPercent ? 100 : 255)));
        };
        colour = QColor::fromRgbF(channel(0), channel(1), channel(2));
    }
    colour.setAlphaF(static_cast<float>(opacity));
    return colour;
}

std::optional<QColor> hexColour(QByteArrayView text)
{
    const QByteArrayView digits = text.sliced(1);
    if (!std::ranges::all_of(digits, isHex))
        return std::nullopt;
    const bool isShort = digits.size() == 3 || digits.size() == 4;
    if (!isShort && digits.size() != 6 && digits.size() != 8)
        return std::nullopt;
    const auto channel = [&](qsizetype i) {
        const QByteArray part = isShort ? QByteArray(2, digits[i]) : digits.sliced(2 * i, 2).toByteArray();
        return part.toInt(nullptr, 16);
    };
    const bool hasOpacity = digits.size() == 4 || digits.size() == 8;
    return QColor(channel(0), channel(1), channel(2), hasOpacity ? channel(3) : 255);
}

QByteArray rewrittenHex(QByteArrayView old, const QColor &colour)
{
    const QByteArrayView digits = old.sliced(1);
    const bool isShort = digits.size() <= 4;
    const bool isUpper = std::ranges::any_of(digits, [](char c) { return c >= 'A' && c <= 'F'; });
    const auto isDoubled = [](int channel) { return channel % 17 == 0; };
    const bool staysShort = isShort && isDoubled(colour.red()) && isDoubled(colour.green()) && isDoubled(colour.blue());
    QByteArray hex;
    for (const int channel : {colour.red(), colour.green(), colour.blue()}) {
        const QByteArray two = QByteArray::number(channel, 16).rightJustified(2, '0');
        hex += staysShort ? two.first(1) : two;
    }
    // The opacity stays, doubled where the others had to be.
    if (digits.size() == 4)
        hex += staysShort ? QByteArray(1, digits[3]) : QByteArray(2, digits[3]);
    else if (digits.size() == 8)
        hex += digits.last(2);
    return '#' + (isUpper ? hex.toUpper() : hex.toLower());
}

QByteArray rewrittenFunction(QByteArrayView old, const QColor &colour)
{
    const QList<Number> numbers = numbersIn(old);
    std::array<double, 3> values{};
    if (isHsl(old))
        values = {std::max(colour.hslHueF(), 0.F) * 360.0, colour.hslSaturationF() * 100.0,
                  colour.lightnessF() * 100.0};
    else
        values = {static_cast<double>(colour.red()), static_cast<double>(colour.green()),
                  static_cast<double>(colour.blue())};
    QByteArray text;
    qsizetype done = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const Number &number = numbers[static_cast<qsizetype>(i)];
        const bool isShare = number.isPercent && !isHsl(old);
        text += old.sliced(done, number.start - done);
        text += QByteArray::number(std::lround(isShare ? values[i] * 100 / 255 : values[i]));
        if (number.isPercent)
            text += '%';
        done = number.end;
    }
    text += old.sliced(done);
    return text;
}

/// Looks through a line from left to right.
class LineScanner
{
public:
    explicit LineScanner(QByteArrayView line) : m_line(line) {}

    std::vector<ColourText> scan()
    {
        for (qsizetype at = 0; at < m_line.size();) {
            const char c = m_line[at];
            if (c == ':' || c == '=')
                setProperty(at);
            else if (c == '{' || c == '}' || c == ';' || c == '>' || c == '<')
                m_isValue = false;
            else if (c == '#' || isWordPart(c)) {
                at = takeWord(at);
                continue;
            }
            ++at;
        }
        return std::move(m_found);
    }

private:
    void setProperty(qsizetype end)
    {
        qsizetype last = end;
        while (last > 0 && (m_line[last - 1] == ' ' || m_line[last - 1] == '\t'))
            --last;
        qsizetype start = last;
        while (start > 0 && isWordPart(m_line[start - 1]))
            --start;
        m_isValue = start < last && takesColours(m_line.sliced(start, last - start));
        // In a:hover #fff { } a rule begins.
        if (m_isValue && m_line[end] == ':') {
            qsizetype next = end;
            while (next < m_line.size() && m_line[next] != '{' && m_line[next] != '}' && m_line[next] != ';')
                ++next;
            m_isValue = next == m_line.size() || m_line[next] != '{';
        }
    }

    qsizetype takeWord(qsizetype start)
    {
        qsizetype end = start + 1;
        while (end < m_line.size() && isWordPart(m_line[end]))
            ++end;
        const QByteArrayView word = m_line.sliced(start, end - start);
        if (!m_isValue)
            return end;
        if (end < m_line.size() && m_line[end] == '(') {
            const qsizetype close = m_line.indexOf(')', end);
            const bool isColour = word.size() <= 4
                && (word.compare("rgb", Qt::CaseInsensitive) == 0 || word.compare("rgba", Qt::CaseInsensitive) == 0
                    || word.compare("hsl", Qt::CaseInsensitive) == 0 || word.compare("hsla", Qt::CaseInsensitive) == 0);
            if (word.compare("url", Qt::CaseInsensitive) == 0)
                return close < 0 ? m_line.size() : close + 1;
            if (!isColour || close < 0 || m_line.sliced(end + 1, close - end).contains('('))
                return end;
            add(start, close + 1);
            return close + 1;
        }
        add(start, end);
        return end;
    }

    void add(qsizetype start, qsizetype end)
    {
        if (const std::optional<QColor> colour = colourOf(m_line.sliced(start, end - start)))
            m_found.push_back({start, end, *colour});
    }

    QByteArrayView m_line;
    std::vector<ColourText> m_found;
    /// Whether a value is being read that may be or have a color.
    bool m_isValue = false;
};

} // namespace

std::vector<ColourText> coloursIn(QByteArrayView line)
{
    return line.size() > longestLine ? std::vector<ColourText>() : LineScanner(line).scan();
}

std::optional<QColor> colourOf(QByteArrayView text)
{
    constexpr qsizetype longestName = 24;
    if (text.startsWith('#'))
        return hexColour(text);
    if (text.endsWith(')'))
        return functionColour(text);
    const QString name = QString::fromUtf8(text).toLower();
    if (text.isEmpty() || text.size() > longestName || name == u"transparent" || !QColor::isValidColor(name))
        return std::nullopt;
    return QColor(name);
}

QByteArray rewritten(QByteArrayView old, const QColor &colour)
{
    if (old.startsWith('#'))
        return rewrittenHex(old, colour);
    if (old.endsWith(')'))
        return rewrittenFunction(old, colour);
    const QStringList names = QColor::colorNames();
    const auto name = std::ranges::find_if(
        names, [&](const QString &each) { return each != u"transparent" && QColor(each).rgb() == colour.rgb(); });
    return name == names.end() ? colour.name().toLatin1() : name->toLatin1();
}

} // namespace zephira
