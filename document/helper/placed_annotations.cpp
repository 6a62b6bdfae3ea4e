#include "placed_annotations.h"

#include "pdf_numbers.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>

namespace kelvo::documents {

namespace {

using Handle = QPDFObjectHandle;
using Rectangle = Handle::Rectangle;

constexpr int noRotateFlag = 1 << 4; // of /F

// A step from an annotation's coordinates to the new page.
struct Movement
{
    QPDFMatrix matrix;
    double scale = 1;
    int turn = 0; // clockwise
};

Movement movementOf(const Placement &placement)
{
    QPDFMatrix matrix = placement.matrix;
    matrix.concat(placement.shown.toShown());
    return {matrix, std::sqrt(std::abs(matrix.a * matrix.d - matrix.b * matrix.c)),
            (placement.shown.turn + placement.rotation) % 360};
}

// Of an annotation that stands upright on a page that is turned: its upper left corner stays.
Movement uprightMovementOf(const Placement &placement, const Rectangle &rect)
{
    double x = 0;
    double y = 0;
    placement.shown.toShown().transform(rect.llx, rect.ury, x, y);
    const double unit = placement.shown.unit;
    Movement movement = movementOf(placement);
    movement.matrix = placement.matrix;
    movement.matrix.concat({unit, 0, 0, unit, x - rect.llx * unit, y - rect.ury * unit});
    movement.turn = placement.rotation;
    return movement;
}

bool hasFlag(Handle entries, int flag)
{
    Handle flags = entries.getKey("/F");
    return flags.isInteger() && (flags.getIntValueAsInt() & flag) != 0;
}

bool isSubtype(Handle entries, const char *name)
{
    Handle subtype = entries.getKey("/Subtype");
    return subtype.isName() && subtype.getName() == name;
}

Rectangle common(const Rectangle &a, const Rectangle &b)
{
    return {std::max(a.llx, b.llx), std::max(a.lly, b.lly), std::min(a.urx, b.urx),
            std::min(a.ury, b.ury)};
}

bool isInside(const Rectangle &rect, const Rectangle &other)
{
    return rect.llx >= other.llx && rect.lly >= other.lly && rect.urx <= other.urx
        && rect.ury <= other.ury;
}

bool isEmpty(const Rectangle &rect)
{
    return !(rect.urx > rect.llx && rect.ury > rect.lly);
}

// ---- entries

// A number, or the numbers of a list, by `scale`.
Handle scaled(Handle value, double scale)
{
    if (value.isNumber())
        return newNumber(value.getNumericValue() * scale);
    if (!value.isArray())
        return value;
    std::vector<Handle> items = value.getArrayAsVector();
    for (Handle &item : items)
        item = scaled(item, scale);
    return Handle::newArray(items);
}

// A list of points, x and y in turn, or of such lists.
Handle moved(Handle points, const QPDFMatrix &matrix)
{
    if (!points.isArray())
        return points;
    std::vector<Handle> items = points.getArrayAsVector();
    for (std::size_t index = 0; index < items.size(); ++index) {
        if (items[index].isArray()) {
            items[index] = moved(items[index], matrix);
        } else if (index + 1 < items.size() && items[index].isNumber()
                   && items[index + 1].isNumber()) {
            double x = 0;
            double y = 0;
            matrix.transform(items[index].getNumericValue(), items[index + 1].getNumericValue(), x,
                             y);
            items[index] = newNumber(x);
            items[++index] = newNumber(y);
        }
    }
    return Handle::newArray(items);
}

// Lines of annotations are one point wide where they do not say it.
void scaleBorder(Handle entries, double scale)
{
    if (Handle style = entries.getKey("/BS"); style.isDictionary()) {
        style = style.shallowCopy();
        style.replaceKey("/W",
                         style.hasKey("/W") ? scaled(style.getKey("/W"), scale) : newNumber(scale));
        style.replaceKey("/D", scaled(style.getKey("/D"), scale));
        entries.replaceKey("/BS", style);
    } else if (entries.getKey("/Border").isArray()) {
        entries.replaceKey("/Border", scaled(entries.getKey("/Border"), scale));
    } else if (!entries.hasKey("/AP")) {
        entries.replaceKey("/Border", newNumbers({0, 0, scale}));
    }
}

// "/Helv 12 Tf 0 g" with another size; one of 0 fits itself.
Handle scaledFont(Handle appearance, double scale)
{
    static const QRegularExpression size(QStringLiteral(R"(([0-9.]+)(?=\s+Tf))"));
    QString text = QString::fromLatin1(appearance.getStringValue());
    if (const auto match = size.match(text); match.hasMatch()) {
        text.replace(match.capturedStart(1), match.capturedLength(1),
                     QString::number(match.captured(1).toDouble() * scale, 'f', 4));
    }
    return Handle::newString(text.toLatin1().toStdString());
}

// From left, top, right and bottom to what they are when they are turned clockwise.
Handle turnedMargins(Handle margins, int turn)
{
    if (!margins.isArray() || margins.getArrayNItems() != 4)
        return margins;
    std::vector<Handle> items = margins.getArrayAsVector();
    std::rotate(items.begin(), items.end() - turn / 90, items.end());
    return Handle::newArray(items);
}

void moveEntries(Handle entries, const Movement &movement)
{
    for (const char *key : {"/QuadPoints", "/L", "/Vertices", "/InkList", "/CL", "/Path"})
        entries.replaceKey(key, moved(entries.getKey(key), movement.matrix));
    for (const char *key : {"/LL", "/LLE", "/LLO", "/RD"})
        entries.replaceKey(key, scaled(entries.getKey(key), movement.scale));
    entries.replaceKey("/RD", turnedMargins(entries.getKey("/RD"), movement.turn));
    if (std::abs(movement.scale - 1) > 1e-9)
        scaleBorder(entries, movement.scale);
    if (movement.turn != 0 && isSubtype(entries, "/Widget")) {
        Handle looks = entries.getKey("/MK");
        looks = looks.isDictionary() ? looks.shallowCopy() : Handle::newDictionary();
        const int before =
            looks.getKey("/R").isInteger() ? looks.getKey("/R").getIntValueAsInt() : 0;
        looks.replaceKey("/R", Handle::newInteger(((before - movement.turn) % 360 + 360) % 360));
        entries.replaceKey("/MK", looks);
    }
}

// ---- appearances

// What an annotation looks like is fitted into its rectangle, so that only turns have to be said.
QPDFMatrix turnedMatrix(Handle appearance, int turn)
{
    QPDFMatrix matrix = turnedToOrigin({}, 1, turn);
    if (Handle own = appearance.getDict().getKey("/Matrix"); own.isMatrix())
        matrix.concat(own.getArrayAsMatrix());
    return matrix;
}

// The inverse, where `matrix` leaves upright rectangles upright.
std::optional<QPDFMatrix> uprightInverse(const QPDFMatrix &matrix)
{
    const bool isUpright = (matrix.b == 0 && matrix.c == 0) || (matrix.a == 0 && matrix.d == 0);
    const double area = matrix.a * matrix.d - matrix.b * matrix.c;
    if (!isUpright || area == 0)
        return std::nullopt;
    return QPDFMatrix(matrix.d / area, -matrix.b / area, -matrix.c / area, matrix.a / area,
                      (matrix.c * matrix.f - matrix.d * matrix.e) / area,
                      (matrix.b * matrix.e - matrix.a * matrix.f) / area);
}

bool canBeCut(Handle appearance, int turn)
{
    return appearance.getDict().getKey("/BBox").isRectangle()
        && uprightInverse(turnedMatrix(appearance, turn));
}

// Of an appearance that fills `whole`, what is in `part`.
void cut(Handle appearance, const QPDFMatrix &matrix, const Rectangle &whole, const Rectangle &part)
{
    Handle entries = appearance.getDict();
    const Rectangle box = matrix.transformRectangle(entries.getKey("/BBox").getArrayAsRectangle());
    const double x = (box.urx - box.llx) / (whole.urx - whole.llx);
    const double y = (box.ury - box.lly) / (whole.ury - whole.lly);
    const Rectangle left(box.llx + (part.llx - whole.llx) * x, box.lly + (part.lly - whole.lly) * y,
                         box.urx + (part.urx - whole.urx) * x,
                         box.ury + (part.ury - whole.ury) * y);
    entries.replaceKey("/BBox", newRectangle(uprightInverse(matrix)->transformRectangle(left)));
}

// The streams of a normal appearance: one, or one for each state.
std::vector<Handle> streamsOf(Handle normal)
{
    if (normal.isStream())
        return {normal};
    std::vector<Handle> streams;
    for (const std::string &state :
         normal.isDictionary() ? normal.getKeys() : std::set<std::string>()) {
        if (Handle stream = normal.getKey(state); stream.isStream())
            streams.push_back(stream);
    }
    return streams;
}

// `entries` with appearances that `change` has made of their normal ones. No mouse comes near
// the others.
void changeAppearances(Handle entries, const std::function<Handle(Handle)> &change)
{
    Handle normal = entries.getKey("/AP").getKey("/N");
    if (normal.isStream()) {
        normal = change(normal);
    } else {
        normal = normal.shallowCopy();
        for (const std::string &state : normal.getKeys()) {
            if (Handle stream = normal.getKey(state); stream.isStream())
                normal.replaceKey(state, change(stream));
        }
    }
    entries.replaceKey("/AP", Handle::newDictionary({{"/N", normal}}));
}

std::vector<Handle> annotationsOf(Handle page)
{
    Handle list = page.getKey("/Annots");
    return list.isArray() ? list.getArrayAsVector() : std::vector<Handle>();
}

} // namespace

PlacedAnnotations::PlacedAnnotations(QPDF &pdf)
    : m_pdf(pdf)
    , m_fields(pdf)
{
}

void PlacedAnnotations::keep(Handle page)
{
    for (const Handle &annotation : annotationsOf(page))
        m_used.insert(annotation.getObjGen());
}

PageAnnotations PlacedAnnotations::read(Handle page)
{
    PageAnnotations annotations;
    for (Handle &annotation : annotationsOf(page)) {
        if (annotation.isDictionary())
            annotations.push_back({annotation, annotation.shallowCopy()});
    }
    return annotations;
}

void PlacedAnnotations::readOthers(const std::vector<Handle> &pages)
{
    for (const Handle &page : pages) {
        for (const Handle &annotation : annotationsOf(page)) {
            if (annotation.isIndirect())
                m_all.insert(annotation.getObjGen());
        }
    }
}

Handle PlacedAnnotations::turnedAppearance(Handle appearance, int turn)
{
    Handle &turned = m_turned[{appearance.getObjGen(), turn}];
    if (!turned.isInitialized()) {
        turned = appearance.copyStream();
        turned.getDict().replaceKey("/Matrix", newMatrix(turnedMatrix(appearance, turn)));
    }
    return turned;
}

void PlacedAnnotations::place(const PageAnnotations &annotations, const Placement &placement,
                              Handle page, Handle list)
{
    std::map<QPDFObjGen, Handle> copies;
    for (const PageAnnotation &annotation : annotations) {
        Handle entries = Handle(annotation.entries).shallowCopy();
        if (!entries.getKey("/Rect").isRectangle())
            continue; // nobody shows it
        const Rectangle before = entries.getKey("/Rect").getArrayAsRectangle();
        const Movement movement = placement.shown.turn != 0 && hasFlag(entries, noRotateFlag)
            ? uprightMovementOf(placement, before)
            : movementOf(placement);
        Rectangle rect = movement.matrix.transformRectangle(before);
        const Rectangle part = common(rect, placement.visible);
        if (!isEmpty(rect) && isEmpty(part))
            continue;

        moveEntries(entries, movement);
        const bool isDrawnAnew = !entries.hasKey("/AP") || m_fields.needsAppearances();
        Handle font = entries.getKey("/DA");
        if (!font.isString() && isDrawnAnew && isSubtype(entries, "/Widget"))
            font = m_fields.inheritedAppearance(entries);
        if (font.isString())
            entries.replaceKey("/DA", scaledFont(font, movement.scale));

        Handle looks = entries.getKey("/AP");
        const std::vector<Handle> streams =
            looks.isDictionary() ? streamsOf(looks.getKey("/N")) : std::vector<Handle>();
        const bool isCut = !isEmpty(rect) && !isInside(rect, placement.visible) && !streams.empty()
            && std::ranges::all_of(streams, [&movement](const Handle &stream) {
                   return canBeCut(stream, movement.turn);
               });
        if (!streams.empty() && (movement.turn != 0 || isCut)) {
            changeAppearances(entries, [&](Handle stream) {
                if (!isCut)
                    return turnedAppearance(stream, movement.turn);
                Handle changed = stream.copyStream();
                const QPDFMatrix matrix = turnedMatrix(stream, movement.turn);
                changed.getDict().replaceKey("/Matrix", newMatrix(matrix));
                cut(changed, matrix, rect, part);
                return changed;
            });
            if (isCut)
                rect = part;
        }
        entries.replaceKey("/Rect", newRectangle(rect));
        entries.replaceKey("/P", page);

        if (!annotation.object.isIndirect()) {
            list.appendItem(entries);
            continue;
        }
        const QPDFObjGen number = annotation.object.getObjGen();
        if (m_used.insert(number).second) {
            m_pdf.replaceObject(number, entries);
            list.appendItem(m_pdf.getObject(number));
            continue;
        }
        Handle copy = m_pdf.makeIndirectObject(entries);
        if (isSubtype(copy, "/Widget"))
            m_fields.addCopy(m_pdf.getObject(number), copy);
        copies[number] = copy;
        list.appendItem(copy);
    }

    // Copies belong together, and not to what they were made of.
    for (auto &[number, copy] : copies) {
        for (const char *key : {"/Popup", "/IRT", "/Parent"}) {
            const auto other = copies.find(copy.getKey(key).getObjGen());
            if (other != copies.end())
                copy.replaceKey(key, other->second);
            else if (key != std::string_view("/Parent"))
                copy.removeKey(key);
        }
    }
}

void PlacedAnnotations::removeOthers()
{
    bool isAnyGone = false;
    for (const QPDFObjGen &annotation : m_all) {
        if (m_used.contains(annotation))
            continue;
        m_pdf.replaceObject(annotation, Handle::newNull());
        isAnyGone = true;
    }
    if (isAnyGone)
        m_fields.removeNulls();
}

} // namespace kelvo::documents
