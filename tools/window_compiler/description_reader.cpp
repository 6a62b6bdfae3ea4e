#include "description_reader.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMetaEnum>
#include <QPlainTextEdit>
#include <QSizePolicy>
#include <QSlider>
#include <QToolButton>

namespace kelvo {

namespace {

// Whose enumerations descriptions name.
const QMetaObject *const enumerationScopes[] = {
    &Qt::staticMetaObject,          &QSizePolicy::staticMetaObject,   &QFrame::staticMetaObject,
    &QLineEdit::staticMetaObject,   &QSlider::staticMetaObject,       &QComboBox::staticMetaObject,
    &QToolButton::staticMetaObject, &QPlainTextEdit::staticMetaObject};

const QStringList layoutClasses = {QStringLiteral("QGridLayout"), QStringLiteral("QHBoxLayout"),
                                   QStringLiteral("QVBoxLayout")};
// Qt's loader gives these their widgets by functions of theirs.
const QStringList holdersOfTheirOwn = {
    QStringLiteral("QScrollArea"), QStringLiteral("QStackedWidget"), QStringLiteral("QSplitter")};
// In the order of BuildStep::Margins.
const QStringList marginNames = {QStringLiteral("leftMargin"), QStringLiteral("topMargin"),
                                 QStringLiteral("rightMargin"), QStringLiteral("bottomMargin")};

constexpr struct
{
    QLatin1String attribute;
    BuildStep step;
} cellLists[] = {
    {QLatin1String("stretch"), BuildStep::Stretches},
    {QLatin1String("rowstretch"), BuildStep::RowStretches},
    {QLatin1String("columnstretch"), BuildStep::ColumnStretches},
    {QLatin1String("rowminimumheight"), BuildStep::RowHeights},
    {QLatin1String("columnminimumwidth"), BuildStep::ColumnWidths},
};

} // namespace

DescriptionReader::DescriptionReader(const QByteArray &file, WindowCode &code)
    : m_xml(file)
    , m_code(code)
{
}

QString DescriptionReader::read()
{
    if (m_xml.readNextStartElement() && m_xml.name() != QLatin1String("ui"))
        refuse(QStringLiteral("begin the file with <ui>"));
    while (m_xml.readNextStartElement()) {
        const QStringView element = m_xml.name();
        if (element == QLatin1String("widget") && m_widgets == 0)
            readWidget();
        else if (element == QLatin1String("tabstops"))
            readTabStops();
        else if (element == QLatin1String("class"))
            m_xml.skipCurrentElement(); // a name for generated code
        else if (element == QLatin1String("resources") || element == QLatin1String("connections"))
            readNumbers({}); // empty, as Designer leaves them
        else
            refuseElement();
    }
    if (!m_xml.hasError() && m_widgets == 0)
        refuse(QStringLiteral("give the window a <widget>"));
    for (const auto &[label, name] : std::as_const(m_buddies)) {
        if (!m_numberOf.contains(name))
            refuse(QStringLiteral("a label has the buddy “%1”; name a widget").arg(name));
        m_code.add(BuildStep::Buddy, {label, m_numberOf.value(name)});
    }
    m_code.add(BuildStep::Done);
    if (!m_xml.hasError())
        return {};
    return QStringLiteral("%1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString());
}

void DescriptionReader::readWidget()
{
    expectAttributes({QStringLiteral("class"), QStringLiteral("name")});
    const bool isOutermost = m_widgets == 0;
    const QString className = attribute(QLatin1String("class"));
    const QString name = attribute(QLatin1String("name"));
    if (name.isEmpty() || m_numberOf.contains(name))
        refuse(QStringLiteral("the name “%1” is empty or stands twice; give another").arg(name));
    m_numberOf.insert(name, m_widgets++);
    m_code.add(BuildStep::Widget, {m_code.text(className), m_code.text(name)});
    bool hasContents = false;
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() == QLatin1String("property") && !hasContents) {
            readProperty(className, isOutermost);
            continue;
        }
        if (m_xml.name() == QLatin1String("widget")) {
            if (holdersOfTheirOwn.contains(className))
                refuse(QStringLiteral("a %1 takes widgets in a way of its own, which is not built; "
                                      "leave it empty and fill it in code")
                           .arg(className));
            readWidget();
        } else if (m_xml.name() == QLatin1String("layout") && !hasContents)
            readLayout();
        else
            refuseElement();
        hasContents = true;
    }
    m_code.add(BuildStep::End);
}

void DescriptionReader::readLayout()
{
    QStringList attributes{QStringLiteral("class"), QStringLiteral("name")};
    for (const auto &each : cellLists)
        attributes.append(each.attribute);
    expectAttributes(attributes);
    const QString className = attribute(QLatin1String("class"));
    if (!layoutClasses.contains(className))
        refuse(QStringLiteral("a layout of the class “%1”; use one of %2")
                   .arg(className, layoutClasses.join(QStringLiteral(", "))));
    const bool isGrid = className == layoutClasses.first();
    m_code.add(BuildStep::Layout,
               {m_code.text(className), m_code.text(attribute(QLatin1String("name")))});
    const QXmlStreamAttributes own = m_xml.attributes();
    QHash<QString, std::int32_t> margins;
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() == QLatin1String("property"))
            readLayoutProperty(isGrid, margins);
        else if (m_xml.name() == QLatin1String("item"))
            readItem(isGrid);
        else
            refuseElement();
    }
    if (!margins.isEmpty()) {
        if (margins.size() != marginNames.size())
            refuse(QStringLiteral("give the layout above all four margins, or none"));
        QList<std::int32_t> values;
        for (const QString &name : marginNames)
            values.append(margins.value(name));
        m_code.add(BuildStep::Margins, {values[0], values[1], values[2], values[3]});
    }
    for (const auto &[name, step] : cellLists) {
        if (!own.hasAttribute(name))
            continue;
        if (isGrid == (step == BuildStep::Stretches))
            refuse(QStringLiteral("the layout cannot have “%1”").arg(name));
        m_code.addList(step, numbersIn(own.value(name).toString()));
    }
    m_code.add(BuildStep::End);
}

void DescriptionReader::readItem(bool isInGrid)
{
    const QString rows = QStringLiteral("rowspan"), columns = QStringLiteral("colspan");
    const QString row = QStringLiteral("row"), column = QStringLiteral("column");
    const QString alignment = QStringLiteral("alignment");
    expectAttributes(isInGrid ? QStringList{row, column, rows, columns, alignment}
                              : QStringList{alignment});
    const QXmlStreamAttributes own = m_xml.attributes();
    if (isInGrid || own.hasAttribute(alignment)) {
        const auto number = [&](const QString &name, int usual) {
            return own.hasAttribute(name) ? numbersIn(own.value(name).toString()).value(0) : usual;
        };
        m_code.add(BuildStep::Cell,
                   {number(row, 0), number(column, 0), number(rows, 1), number(columns, 1),
                    own.hasAttribute(alignment) ? valueOf(own.value(alignment).toString()) : 0});
    }
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() == QLatin1String("widget"))
            readWidget();
        else if (m_xml.name() == QLatin1String("layout"))
            readLayout();
        else if (m_xml.name() == QLatin1String("spacer"))
            readSpacer();
        else
            refuseElement();
    }
}

void DescriptionReader::readSpacer()
{
    QHash<QString, std::int32_t> size;
    std::int32_t direction = Qt::Horizontal, policy = QSizePolicy::Expanding;
    while (m_xml.readNextStartElement()) {
        const QString name = attribute(QLatin1String("name"));
        const bool isProperty =
            m_xml.name() == QLatin1String("property") && m_xml.readNextStartElement();
        if (isProperty && name == QLatin1String("sizeHint"))
            size = readNumbers({QStringLiteral("width"), QStringLiteral("height")});
        else if (isProperty && name == QLatin1String("orientation"))
            direction = readKeys();
        else if (isProperty && name == QLatin1String("sizeType"))
            policy = readKeys();
        else
            refuseElement();
        m_xml.skipCurrentElement();
    }
    const bool isVertical = direction == Qt::Vertical;
    constexpr std::int32_t across = QSizePolicy::Minimum;
    m_code.add(BuildStep::Spacer,
               {size.value(QStringLiteral("width")), size.value(QStringLiteral("height")),
                isVertical ? across : policy, isVertical ? policy : across});
}

void DescriptionReader::readProperty(const QString &className, bool isOutermost)
{
    expectAttributes({QStringLiteral("name"), QStringLiteral("stdset")});
    const QString name = attribute(QLatin1String("name"));
    m_xml.readNextStartElement();
    if (m_xml.name() == QLatin1String("cstring") && name == QLatin1String("buddy")) {
        m_buddies.append({m_widgets - 1, readText()});
    } else if (m_xml.name() == QLatin1String("rect") && name == QLatin1String("geometry")
               && isOutermost) {
        const auto geometry = readNumbers({QStringLiteral("x"), QStringLiteral("y"),
                                           QStringLiteral("width"), QStringLiteral("height")});
        m_code.add(
            BuildStep::Resize,
            {geometry.value(QStringLiteral("width")), geometry.value(QStringLiteral("height"))});
    } else if (className == QLatin1String("Line") && name == QLatin1String("orientation")) {
        m_code.add(BuildStep::Number, QStringLiteral("frameShape"),
                   {int(readKeys() == Qt::Horizontal ? QFrame::HLine : QFrame::VLine)});
    } else {
        readValue(name);
    }
    m_xml.skipCurrentElement();
}

void DescriptionReader::readLayoutProperty(bool isGrid, QHash<QString, std::int32_t> &margins)
{
    expectAttributes({QStringLiteral("name")});
    const QString name = attribute(QLatin1String("name"));
    m_xml.readNextStartElement();
    const std::int32_t number = readNumber();
    if (marginNames.contains(name))
        margins.insert(name, number);
    else if (name == QLatin1String("spacing"))
        m_code.add(BuildStep::Spacing, {number});
    else if (name == QLatin1String("horizontalSpacing") && isGrid)
        m_code.add(BuildStep::HorizontalSpacing, {number});
    else if (name == QLatin1String("verticalSpacing") && isGrid)
        m_code.add(BuildStep::VerticalSpacing, {number});
    else
        refuse(QStringLiteral("the layout cannot have “%1”").arg(name));
    m_xml.skipCurrentElement();
}

void DescriptionReader::readValue(const QString &property)
{
    const QStringView kind = m_xml.name();
    const QString horizontal = QStringLiteral("horstretch"),
                  vertical = QStringLiteral("verstretch");
    const QString width = QStringLiteral("width"), height = QStringLiteral("height");
    if (kind == QLatin1String("string")) {
        m_code.add(BuildStep::Text, property, {m_code.text(readText())});
    } else if (kind == QLatin1String("stringlist")) {
        QList<std::int32_t> texts{0};
        for (; m_xml.readNextStartElement(); ++texts[0])
            texts.append(m_code.text(readText()));
        m_code.add(BuildStep::Texts, property, texts);
    } else if (kind == QLatin1String("number")) {
        m_code.add(BuildStep::Number, property, {readNumber()});
    } else if (kind == QLatin1String("enum") || kind == QLatin1String("set")) {
        m_code.add(BuildStep::Number, property, {readKeys()});
    } else if (kind == QLatin1String("bool")) {
        m_code.add(BuildStep::Flag, property, {readText() == QLatin1String("true")});
    } else if (kind == QLatin1String("size")) {
        const auto size = readNumbers({width, height});
        m_code.add(BuildStep::Size, property, {size.value(width), size.value(height)});
    } else if (kind == QLatin1String("sizepolicy")) {
        const QString scope = QStringLiteral("QSizePolicy");
        const std::int32_t across = valueOf(attribute(QLatin1String("hsizetype")), scope);
        const std::int32_t down = valueOf(attribute(QLatin1String("vsizetype")), scope);
        const auto stretch = readNumbers({horizontal, vertical});
        m_code.add(BuildStep::Policy, property,
                   {across, down, stretch.value(horizontal), stretch.value(vertical)});
    } else if (kind == QLatin1String("font")) {
        std::int32_t points = 0;
        bool isBold = false;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("pointsize"))
                points = readNumber();
            else if (m_xml.name() == QLatin1String("bold"))
                isBold = readText() == QLatin1String("true");
            else
                refuseElement();
        }
        if (points <= 0)
            refuse(QStringLiteral("give the font a point size"));
        m_code.add(BuildStep::Font, property, {points, isBold});
    } else {
        refuseElement();
    }
}

void DescriptionReader::readTabStops()
{
    QList<std::int32_t> widgets;
    while (m_xml.readNextStartElement()) {
        const QString name = readText();
        if (!m_numberOf.contains(name))
            refuse(QStringLiteral("there is no widget “%1” for Tab").arg(name));
        widgets.append(m_numberOf.value(name));
    }
    if (!widgets.isEmpty())
        m_code.addList(BuildStep::TabOrder, widgets);
}

std::int32_t DescriptionReader::readNumber()
{
    return numbersIn(readText()).value(0);
}

std::int32_t DescriptionReader::readKeys()
{
    return valueOf(readText());
}

QString DescriptionReader::readText()
{
    return m_xml.readElementText();
}

// The numbers of elements of those names, each at most once.
QHash<QString, std::int32_t> DescriptionReader::readNumbers(const QStringList &names)
{
    QHash<QString, std::int32_t> numbers;
    while (m_xml.readNextStartElement()) {
        const QString name = m_xml.name().toString();
        if (names.contains(name) && !numbers.contains(name))
            numbers.insert(name, readNumber());
        else
            refuseElement();
    }
    return numbers;
}

QString DescriptionReader::attribute(QLatin1String name) const
{
    return m_xml.attributes().value(name).toString();
}

void DescriptionReader::expectAttributes(const QStringList &names)
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    for (const QXmlStreamAttribute &each : attributes) {
        if (!names.contains(each.name()))
            refuse(QStringLiteral("<%1> has “%2”; use one of %3")
                       .arg(m_xml.name(), each.name(), names.join(QStringLiteral(", "))));
    }
}

QList<std::int32_t> DescriptionReader::numbersIn(const QString &list)
{
    QList<std::int32_t> numbers;
    for (const QString &each : list.split(u',')) {
        bool isNumber = false;
        numbers.append(each.toInt(&isNumber));
        if (!isNumber)
            refuse(QStringLiteral("“%1” is no integer").arg(each));
    }
    return numbers;
}

// "Qt::AlignLeft|Qt::AlignTop", or a key of `scope`.
std::int32_t DescriptionReader::valueOf(const QString &keys, const QString &scope)
{
    std::int32_t value = 0;
    for (const QString &each : keys.split(u'|')) {
        const QString wanted = scope.isEmpty() ? each.section(QStringLiteral("::"), 0, -2) : scope;
        const QByteArray key = each.section(QStringLiteral("::"), -1).toLatin1();
        bool isKnown = false;
        for (const QMetaObject *owner : enumerationScopes) {
            if (QLatin1String(owner->className()) != wanted)
                continue;
            for (int i = 0; i < owner->enumeratorCount() && !isKnown; ++i) {
                const int found = owner->enumerator(i).keyToValue(key.constData(), &isKnown);
                if (isKnown)
                    value |= found;
            }
        }
        if (!isKnown)
            refuse(QStringLiteral("“%1” is no value of an enumeration that is known here; add its "
                                  "class to enumerationScopes")
                       .arg(each));
    }
    return value;
}

void DescriptionReader::refuseElement()
{
    refuse(QStringLiteral("<%1> is not known here; do without, or teach DescriptionReader and "
                          "the window builder what it does")
               .arg(m_xml.name()));
}

void DescriptionReader::refuse(const QString &sentence)
{
    if (!m_xml.hasError())
        m_xml.raiseError(sentence);
}

} // namespace kelvo
