#include "input_limits.h"

#include "characters.h"
#include "control_interface.h"
#include "control_support.h"
#include "string_table.h"
#include "texts.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>

namespace kelvo {

namespace {

bool isAllowed(char32_t c, const InputLimits &limits)
{
    return isKept(c) && (!limits.allowed || limits.allowed->contains(c));
}

QString withSubstitutes(const QString &text, const InputLimits &limits)
{
    QString changed;
    eachCharacter(text, [&](char32_t c) {
        const char32_t taken = isAllowed(c, limits) ? c : limits.substitutes.value(c, c);
        changed += QString::fromUcs4(&taken, 1);
    });
    return changed;
}

int lengthOf(QStringView text)
{
    return static_cast<int>(text.toUcs4().size());
}

int bytesOf(QStringView text)
{
    return static_cast<int>(text.toUtf8().size());
}

// What is left of `maximum` beside what stays of `before`; -1: no limit.
int roomBeside(QStringView before, QStringView removed, int maximum, int (*size)(QStringView))
{
    return maximum < 0 ? -1 : std::max(0, maximum - (size(before) - size(removed)));
}

// What a user's edit inserted: `before` and `after` are alike but for a piece.
struct Edit
{
    qsizetype start = 0;    // of the piece, in both texts
    qsizetype removed = 0;  // UTF-16 units of `before`
    qsizetype inserted = 0; // UTF-16 units of `after`
};

Edit editBetween(QStringView before, QStringView after)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype start = 0;
    while (start < shorter && before[start] == after[start])
        ++start;
    if (start > 0 && before[start - 1].isHighSurrogate())
        --start;
    qsizetype tail = 0;
    while (tail < shorter - start
           && before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;
    if (tail > 0 && before[before.size() - tail].isLowSurrogate())
        --tail;
    return {start, before.size() - start - tail, after.size() - start - tail};
}

// The piece of `after` that may stand in place of what was inserted. What stood
// there before is never judged: code may have set more than the user may type.
QString allowedPiece(QStringView before, QStringView after, const Edit &edit,
                     const InputLimits &limits)
{
    InputLimits room = limits;
    const QStringView removed = before.mid(edit.start, edit.removed);
    room.maximumLength = roomBeside(before, removed, limits.maximumLength, lengthOf);
    room.maximumBytes = roomBeside(before, removed, limits.maximumBytes, bytesOf);
    return withinLimits(after.mid(edit.start, edit.inserted).toString(), room);
}

// Keeps one field. It is a child of the field.
class LimitKeeper : public QValidator
{
public:
    LimitKeeper(QWidget *field, const InputLimits &limits)
        : QValidator(field)
        , m_field(field)
        , m_limits(limits)
    {
    }

    const InputLimits &limits() const { return m_limits; }
    void setLimits(const InputLimits &limits) { m_limits = limits; }

    void keep(QLineEdit *line)
    {
        m_line = line;
        m_text = line->text();
        line->setValidator(this);
    }

    void keep(QPlainTextEdit *edit)
    {
        m_text = edit->toPlainText();
        connect(edit, &QPlainTextEdit::textChanged, this, [edit] { keepWithinLimits(edit); });
    }

    // Called by the line edit for every change. A text set by code comes here
    // too, with the field marked as not modified, and is taken as it is.
    State validate(QString &input, int &cursor) const override
    {
        if (!m_line->isModified()) {
            m_text = input;
            return Acceptable;
        }
        const Edit edit = editBetween(m_text, input);
        const QString piece = allowedPiece(m_text, input, edit, m_limits);
        const QString typed = input.mid(edit.start, edit.inserted);
        if (piece != typed) {
            if (piece.size() != typed.size())
                explain(typed);
            if (piece.isEmpty())
                return Invalid; // the line edit brings back what it replaced
            input.replace(edit.start, edit.inserted, piece);
            cursor = static_cast<int>(edit.start + piece.size());
        }
        m_text = input;
        return Acceptable;
    }

    bool correct(QPlainTextEdit *text)
    {
        const QString now = text->toPlainText();
        const QTextDocument *document = text->document();
        // setPlainText() clears the undo history: a text set by code.
        if (!document->isUndoAvailable() && !document->isRedoAvailable()) {
            m_text = now;
            return false;
        }
        const Edit edit = editBetween(m_text, now);
        QString piece = allowedPiece(m_text, now, edit, m_limits);
        const QString typed = now.mid(edit.start, edit.inserted);
        if (piece == typed) {
            m_text = now;
            return false;
        }
        if (piece.size() != typed.size())
            explain(typed);
        if (piece.isEmpty())
            piece = m_text.mid(edit.start, edit.removed); // what it replaced comes back
        m_text = now.left(edit.start) + piece + now.mid(edit.start + edit.inserted);
        QTextCursor cursor(text->document());
        cursor.joinPreviousEditBlock();
        cursor.setPosition(static_cast<int>(edit.start));
        cursor.setPosition(static_cast<int>(edit.start + edit.inserted), QTextCursor::KeepAnchor);
        cursor.insertText(piece);
        cursor.endEditBlock();
        return true;
    }

private:
    void explain(const QString &refused) const
    {
        if (!m_field->isVisible())
            return;
        InputLimits anyLength = m_limits;
        anyLength.minimumLength = 0;
        anyLength.maximumLength = anyLength.maximumBytes = -1;
        const bool isCharacter = findProblem(refused, anyLength) == InputProblem::BadCharacter;
        const QString text = isCharacter
            ? translate("Controls", "This character cannot be used here.")
            : m_limits.maximumBytes >= 0 ? translate("Controls", "There is no room for more here.")
                                         : translate("Controls", "At most %n characters fit here.",
                                                     nullptr, m_limits.maximumLength);
        QToolTip::showText(m_field->mapToGlobal(QPoint(0, m_field->height())), text, m_field);
    }

    QWidget *m_field;
    QLineEdit *m_line = nullptr; // null for a plain text
    InputLimits m_limits;
    mutable QString m_text; // as it stood before the change that is looked at
};

LimitKeeper *keeperOf(const QWidget *field)
{
    for (QObject *child : field->children()) {
        if (auto *keeper = dynamic_cast<LimitKeeper *>(child))
            return keeper;
    }
    return nullptr;
}

} // namespace

bool InputLimits::ascii() const
{
    return allowed
        && std::ranges::all_of(*allowed, [](char32_t c) { return c >= 0x20 && c <= 0x7E; });
}

QSet<char32_t> InputLimits::setOf(const QString &characters)
{
    QSet<char32_t> set;
    for (const char32_t c : characters.toUcs4())
        set.insert(c);
    return set;
}

const QSet<char32_t> &InputLimits::decimalDigits()
{
    static const QSet<char32_t> digits = setOf(QStringLiteral("0123456789"));
    return digits;
}

InputProblem findProblem(const QString &text, const InputLimits &limits)
{
    int length = 0;
    bool areAllowed = true;
    eachCharacter(text, [&](char32_t c) {
        ++length;
        areAllowed = areAllowed && isAllowed(c, limits);
    });
    if (!areAllowed)
        return InputProblem::BadCharacter;
    if (length < limits.minimumLength)
        return InputProblem::TooShort;
    if ((limits.maximumLength >= 0 && length > limits.maximumLength)
        || (limits.maximumBytes >= 0 && bytesOf(text) > limits.maximumBytes))
        return InputProblem::TooLong;
    return InputProblem::None;
}

QString inWords(const InputLimits &limits)
{
    // Of each kind of characters: any number, at most %2, from %1 to %2. %3 is a list of them.
    struct Sentences
    {
        const char *any, *most, *range;
    };
    static constexpr Sentences characters{
        "",
        QT_TRANSLATE_NOOP("Controls", "it takes at most %2 characters"),
        QT_TRANSLATE_NOOP("Controls", "it takes %1 to %2 characters"),
    };
    static constexpr Sentences digits{
        QT_TRANSLATE_NOOP("Controls", "it takes only digits"),
        QT_TRANSLATE_NOOP("Controls", "it takes at most %2 digits"),
        QT_TRANSLATE_NOOP("Controls", "it takes %1 to %2 digits"),
    };
    static constexpr Sentences listed{
        QT_TRANSLATE_NOOP("Controls", "it takes only characters of “%3”"),
        QT_TRANSLATE_NOOP("Controls", "it takes at most %2 characters of “%3”"),
        QT_TRANSLATE_NOOP("Controls", "it takes %1 to %2 characters of “%3”"),
    };
    static constexpr Sentences ascii{
        QT_TRANSLATE_NOOP("Controls", "it takes only ASCII characters"),
        QT_TRANSLATE_NOOP("Controls", "it takes at most %2 ASCII characters"),
        QT_TRANSLATE_NOOP("Controls", "it takes %1 to %2 ASCII characters"),
    };
    static constexpr Sentences certain{
        QT_TRANSLATE_NOOP("Controls", "it takes only characters of a certain set"),
        QT_TRANSLATE_NOOP("Controls", "it takes at most %2 characters of a certain set"),
        QT_TRANSLATE_NOOP("Controls", "it takes %1 to %2 characters of a certain set"),
    };

    const Sentences *sentences = &characters;
    QString list;
    if (limits.allowed == InputLimits::decimalDigits()) {
        sentences = &digits;
    } else if (limits.allowed) {
        constexpr qsizetype mostListed = 40;
        QList<char32_t> sorted = limits.allowed->values();
        std::ranges::sort(sorted);
        if (sorted.size() <= mostListed) {
            sentences = &listed;
            list = QString::fromUcs4(sorted.constData(), sorted.size());
        } else {
            sentences = limits.ascii() ? &ascii : &certain;
        }
    }
    if (limits.maximumBytes >= 0 && !limits.allowed && limits.maximumLength < 0)
        return translate("Controls", "it takes at most %1 bytes of UTF-8").arg(limits.maximumBytes);
    const bool hasMost = limits.maximumLength >= 0;
    const char *sentence = !hasMost ? sentences->any
        : limits.minimumLength > 0  ? sentences->range
                                    : sentences->most;
    return *sentence == '\0' ? QString()
                             : formatted(translate("Controls", sentence),
                                         {QString::number(limits.minimumLength),
                                          QString::number(limits.maximumLength), list});
}

QString withinLimits(const QString &typed, const InputLimits &limits)
{
    QString kept;
    int length = 0;
    int bytes = 0;
    bool isFull = false; // a later, smaller character does not take the place of one that is out
    eachCharacter(withSubstitutes(typed, limits), [&](char32_t c) {
        if (isFull || !isAllowed(c, limits))
            return;
        const QString text = QString::fromUcs4(&c, 1);
        ++length;
        bytes += bytesOf(text);
        isFull = (limits.maximumLength >= 0 && length > limits.maximumLength)
            || (limits.maximumBytes >= 0 && bytes > limits.maximumBytes);
        if (!isFull)
            kept += text;
    });
    return kept;
}

void setInputLimits(QWidget *field, const InputLimits &limits)
{
    if (LimitKeeper *keeper = keeperOf(field))
        keeper->setLimits(limits);
    else
        controlInterface(field)->keepWithin(limits);
}

std::optional<InputLimits> inputLimits(const QWidget *field)
{
    const LimitKeeper *keeper = keeperOf(field);
    return keeper ? std::optional(keeper->limits()) : std::nullopt;
}

void keepTypedWithin(const InputLimits &limits, QLineEdit *line, QWidget *field)
{
    (new LimitKeeper(field, limits))->keep(line);
}

void keepTypedWithin(const InputLimits &limits, QPlainTextEdit *edit)
{
    (new LimitKeeper(edit, limits))->keep(edit);
}

bool keepWithinLimits(QPlainTextEdit *edit)
{
    LimitKeeper *keeper = keeperOf(edit);
    return keeper && keeper->correct(edit);
}

bool typeText(QWidget *field, const QString &text)
{
    if (!field->isEnabled())
        return false;
    const std::optional<InputLimits> limits = inputLimits(field);
    return controlInterface(field)->enter(limits ? withSubstitutes(text, *limits) : text);
}

} // namespace kelvo
