#include "ppd_file.h"

#include "file_store.h"
#include "ppd_translation.h"
#include "size_limits.h"
#include "standard_words.h"
#include "texts.h"

#include <QHash>
#include <QSet>

// The PPD calls are deprecated in favour of IPP, which knows neither vendor
// options nor their constraints.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <cups/cups.h>
#include <cups/ppd.h>

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cmath>
#include <cstring>
#include <initializer_list>
#include <mutex>
#include <set>

namespace kelvo {

namespace {

using Code = Error::Code;

// libcups hands out UTF-8 whatever encoding the file declares.
QString textFrom(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

// ISO Latin 5 is ISO 8859-9, Latin 1 with six letters of Turkish. libcups takes it
// for ISO 8859-5, which is Cyrillic, so it is given UTF-8 instead.
QByteArray withoutLatin5(const QByteArray &bytes)
{
    static constexpr QByteArrayView keyword = "*LanguageEncoding:";
    const auto isLineEnd = [](char c) { return c == '\n' || c == '\r'; };
    const qsizetype found = bytes.indexOf(keyword);
    if (found <= 0 || !isLineEnd(bytes[found - 1]))
        return bytes;
    const qsizetype begin = found + keyword.size();
    const auto *lineEnd = std::find_if(bytes.cbegin() + begin, bytes.cend(), isLineEnd);
    const qsizetype end = lineEnd - bytes.cbegin();
    if (qstricmp(bytes.mid(begin, end - begin).trimmed().constData(), "ISOLatin5") != 0)
        return bytes;
    static constexpr std::pair<char16_t, char16_t> letters[] = {
        {u'\u00D0', u'\u011E'}, {u'\u00DD', u'\u0130'}, {u'\u00DE', u'\u015E'},
        {u'\u00F0', u'\u011F'}, {u'\u00FD', u'\u0131'}, {u'\u00FE', u'\u015F'}};
    QString text = QString::fromLatin1(bytes.sliced(end)); // what stands before is not in it
    for (const auto &[latin1, latin5] : letters)
        text.replace(QChar(latin1), QChar(latin5));
    return bytes.first(begin) + " UTF-8" + text.toUtf8();
}

// The descriptor of a file in memory with these bytes, at its beginning; -1, with errno,
// where there is no room.
int fileInMemory(const QByteArray &bytes)
{
    const int fd = memfd_create("ppd", MFD_CLOEXEC);
    for (qsizetype done = 0; fd >= 0 && done < bytes.size();) {
        const ssize_t count =
            ::write(fd, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (count <= 0 && errno != EINTR) {
            const int number = errno;
            ::close(fd);
            errno = number;
            return -1;
        }
        done += std::max<ssize_t>(count, 0);
    }
    ::lseek(fd, 0, SEEK_SET);
    return fd;
}

// libcups asks for the decimal point once, and then reads each number by the locale that there is
// by then. The process's may change meanwhile: Qt's application takes the user's over when it
// begins. As long as this lives, the thread has one of its own.
class PlainNumbers
{
public:
    PlainNumbers()
        : m_plain(::newlocale(LC_ALL_MASK, "C", nullptr))
        , m_before(::uselocale(m_plain))
    {
    }
    ~PlainNumbers()
    {
        ::uselocale(m_before);
        ::freelocale(m_plain);
    }
    Q_DISABLE_COPY_MOVE(PlainNumbers)

private:
    locale_t m_plain, m_before;
};

// Opens the PPD in `file`. libcups reads from a descriptor only, so they are
// put into a file in memory: what was checked is what is read.
Result<std::shared_ptr<ppd_file_t>> openBytes(const QByteArray &file, const QString &path)
{
    const int fd = fileInMemory(withoutLatin5(file));
    if (fd < 0)
        return Error{Code::NotReadable, path, QString::fromUtf8(std::strerror(errno))};
    ppd_file_t *ppd = ppdOpenFd(fd); // closes fd
    if (!ppd) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        if (status == PPD_MISSING_PPDADOBE4 || status == PPD_NULL_FILE)
            return Error{Code::Damaged, path,
                         translate("Device", "this is not a PPD file; one begins with *PPD-Adobe")};
        return Error{
            Code::Damaged, path,
            translate("Device", "line %1: %2").arg(line).arg(textFrom(ppdErrorString(status)))};
    }
    return std::shared_ptr<ppd_file_t>(ppd, &ppdClose);
}

// Counts what stands in the text, which is never less than what libcups finds.
std::optional<Error> findExcess(const QByteArray &bytes, const QString &path)
{
    struct Row
    {
        QByteArrayView word;
        int most;
        const char *problem; // with %1 for the most
    };
    static constexpr const char *options = QT_TRANSLATE_NOOP("Device", "more than %1 options");
    static constexpr const char *groups = QT_TRANSLATE_NOOP("Device", "more than %1 groups");
    static constexpr const char *sizes = QT_TRANSLATE_NOOP("Device", "more than %1 page sizes");
    static constexpr const char *constraints =
        QT_TRANSLATE_NOOP("Device", "more than %1 constraints");
    static constexpr Row rows[] = {
        {"OpenUI", limits::ppdOptions, options},
        {"OpenGroup", limits::ppdOptions, groups},
        {"OpenSubGroup", limits::ppdOptions, groups},
        {"*PageSize ", limits::ppdPageSizes, sizes},
        {"*PaperDimension", limits::ppdPageSizes, sizes},
        {"*ImageableArea", limits::ppdPageSizes, sizes},
        {"UIConstraints", limits::ppdConstraints, constraints},
    };
    for (const Row &row : rows) {
        if (bytes.count(row.word) > row.most)
            return Error{Code::TooLarge, path, translate("Device", row.problem).arg(row.most)};
    }
    return std::nullopt;
}

// A PPD that was cut off on its way has all that stood before the cut, and
// libcups takes it: options that the device has would silently be missing.
std::optional<Error> findCut(const QByteArray &bytes, const QString &path)
{
    struct Open
    {
        QByteArrayView begin, end; // keywords
        const char *cut;           // what is wrong with a file that ends before `end`
        QByteArray name;           // empty: none is open
        int line = 0;
    };
    static constexpr const char *inOption = QT_TRANSLATE_NOOP(
        "Device", "line %1: the file ends in the middle of the option %2; get it again");
    static constexpr const char *inGroup = QT_TRANSLATE_NOOP(
        "Device", "line %1: the file ends in the middle of the group %2; get it again");
    Open opens[] = {
        {"*OpenUI", "*CloseUI", inOption, {}, 0},
        {"*JCLOpenUI", "*JCLCloseUI", inOption, {}, 0},
        {"*OpenGroup", "*CloseGroup", inGroup, {}, 0},
    };
    int number = 0;
    int quoteLine = 0; // where a value in quotes began that goes over several lines
    for (qsizetype at = 0; at < bytes.size();) {
        qsizetype end = at;
        while (end < bytes.size() && bytes[end] != '\n' && bytes[end] != '\r')
            ++end;
        const QByteArrayView line(bytes.constData() + at, end - at);
        at = end + (bytes.mid(end, 2) == "\r\n" ? 2 : 1);
        ++number;
        const bool isQuoted = quoteLine != 0;
        const QByteArrayView value =
            isQuoted ? line : line.sliced(std::min(line.size(), line.indexOf(':') + 1)).trimmed();
        if (isQuoted && value.contains('"'))
            quoteLine = 0;
        else if (!isQuoted && value.startsWith('"') && value.count('"') == 1
                 && !line.startsWith("*%"))
            quoteLine = number;
        if (isQuoted || !line.startsWith('*'))
            continue;
        const auto isWordEnd = [](char c) { return c == ' ' || c == '\t' || c == ':'; };
        const auto *wordEnd = std::find_if(line.begin(), line.end(), isWordEnd);
        const QByteArrayView keyword = line.first(wordEnd - line.begin());
        for (Open &open : opens) {
            if (keyword == open.end)
                open.name.clear();
            if (keyword != open.begin)
                continue;
            // "*OpenUI *Name/Text: PickOne", "*OpenGroup: Name/Text"
            QByteArray name = line.sliced(keyword.size()).toByteArray().trimmed();
            while (name.startsWith(':') || name.startsWith('*') || name.startsWith(' '))
                name.remove(0, 1);
            const auto *nameEnd = std::find_if(name.cbegin(), name.cend(),
                                               [](char c) { return c == '/' || c == ':'; });
            open.name = name.first(nameEnd - name.cbegin());
            open.line = number;
        }
    }
    for (const Open &open : opens) {
        if (!open.name.isEmpty())
            return Error{Code::Damaged, path,
                         translate("Device", open.cut)
                             .arg(QString::number(open.line), QString::fromLatin1(open.name))};
    }
    if (quoteLine != 0)
        return Error{Code::Damaged, path,
                     translate("Device",
                               "line %1: the file ends in the middle of a text in quotes; "
                               "get it again")
                         .arg(quoteLine)};
    return std::nullopt;
}

void walk(const ppd_group_t &group, const auto &visit)
{
    for (int i = 0; i < group.num_options; ++i)
        visit(group.options[i]);
    for (int i = 0; i < group.num_subgroups; ++i)
        walk(group.subgroups[i], visit);
}

void walk(const ppd_file_t &ppd, const auto &visit)
{
    for (int i = 0; i < ppd.num_groups; ++i)
        walk(ppd.groups[i], visit);
}

bool isAny(const char *word, std::initializer_list<const char *> words)
{
    return std::any_of(words.begin(), words.end(),
                       [word](const char *other) { return qstricmp(word, other) == 0; });
}

// Made by a print server, or by us, of what a printer says over IPP. There is no text of anybody's
// in it, but English for a few options and what libcups puts in the place of others.
bool isMadeFromIpp(ppd_file_t *ppd)
{
    return QByteArrayView(ppd->nickname).endsWith(" - IPP Everywhere")
        || ppdFindAttr(ppd, "KelvoIpp", nullptr);
}

// What people read of a PPD's options: its words in the program's language, else its own, and
// where there are none those of the standards.
class PpdTexts
{
public:
    PpdTexts(ppd_file_t *ppd, const QByteArray &bytes)
        : m_ppd(ppd)
        , m_isMadeFromIpp(isMadeFromIpp(ppd))
        , m_translation(bytes, textLanguage())
        , m_server(m_isMadeFromIpp ? bytes : QByteArray(), QStringLiteral("C"))
    {
    }

    QString text(const ppd_group_t &group) const
    {
        const QString standard =
            m_isMadeFromIpp ? standardOptionWords(textFrom(group.name)) : QString();
        return standard.isEmpty() ? m_translation.text(group.name, textFrom(group.text)) : standard;
    }
    QString text(const ppd_option_t &option) const
    {
        if (hasOwn(option.keyword, option.text))
            return m_translation.text(option.keyword, textFrom(option.text));
        const QString translated = m_translation.text(option.keyword, {});
        return translated.isEmpty()
            ? chosen(option.keyword, standardOptionWords(textFrom(option.keyword)),
                     m_server.text(option.keyword, {}))
            : translated;
    }
    QString text(const ppd_option_t &option, const ppd_choice_t &choice) const
    {
        if (hasOwn(choice.choice, choice.text))
            return m_translation.text(option.keyword, choice.choice, textFrom(choice.text));
        const QString translated = m_translation.text(option.keyword, choice.choice, {});
        return translated.isEmpty() ? chosen(choice.choice, standardWords(option, choice),
                                             m_server.text(option.keyword, choice.choice, {}))
                                    : translated;
    }

private:
    // A keyword in the place of a text is none.
    bool hasOwn(const char *keyword, const char *text) const
    {
        return !m_isMadeFromIpp && qstrcmp(keyword, text) != 0;
    }
    QString chosen(const char *keyword, const QString &standard, const QString &server) const
    {
        for (const QString &text : {standard, server}) {
            if (!text.isEmpty())
                return text;
        }
        return m_isMadeFromIpp ? readable(textFrom(keyword)) : textFrom(keyword);
    }
    QString standardWords(const ppd_option_t &option, const ppd_choice_t &choice) const
    {
        if (isAny(option.keyword, {"PageSize", "PageRegion"})) {
            const ppd_size_t *size = m_isMadeFromIpp ? ppdPageSize(m_ppd, choice.choice) : nullptr;
            return size && size->width > 0 && size->length > 0
                ? paperWords(textFrom(choice.choice), size->width, size->length)
                : QString();
        }
        return standardChoiceWords(textFrom(option.keyword), textFrom(choice.choice));
    }

    ppd_file_t *m_ppd;
    const bool m_isMadeFromIpp;
    const PpdTranslation m_translation;
    const PpdTranslation m_server; // what cupsd writes as if for a language "C", in English
};

PpdOption optionFrom(const ppd_option_t &option, const PpdTexts &texts)
{
    PpdOption copy{textFrom(option.keyword),
                   texts.text(option),
                   textFrom(option.defchoice),
                   option.ui == PPD_UI_PICKMANY,
                   {}};
    copy.choices.reserve(static_cast<std::size_t>(option.num_choices));
    for (int i = 0; i < option.num_choices; ++i) {
        const ppd_choice_t &choice = option.choices[i];
        copy.choices.push_back({textFrom(choice.choice), texts.text(option, choice)});
    }
    return copy;
}

// The page sizes that can be chosen by name: "Custom" has no size of its own.
std::vector<PpdPageSize> pageSizesFrom(const ppd_file_t &ppd)
{
    std::vector<PpdPageSize> sizes;
    for (int i = 0; i < ppd.num_sizes; ++i) {
        const ppd_size_t &size = ppd.sizes[i];
        const double edges[] = {size.width,  size.length, size.left,
                                size.bottom, size.right,  size.top};
        const bool finite = std::all_of(std::begin(edges), std::end(edges),
                                        [](double edge) { return std::isfinite(edge); });
        if (!finite || size.width <= 0 || size.length <= 0 || std::strcmp(size.name, "Custom") == 0)
            continue;
        sizes.push_back(
            {textFrom(size.name), edges[0], edges[1], edges[2], edges[3], edges[4], edges[5]});
    }
    return sizes;
}

// The option and choice exist; "Custom.WxH" is a choice where custom ones are.
bool isOffered(ppd_file_t *ppd, const QByteArray &option, const QByteArray &choice)
{
    ppd_option_t *found = ppdFindOption(ppd, option.constData());
    return found && !choice.isEmpty() && ppdFindChoice(found, choice.constData());
}

bool mark(ppd_file_t *ppd, const QString &option, const QString &choice)
{
    const QByteArray keyword = option.toUtf8();
    const QByteArray value = choice.toUtf8();
    if (!isOffered(ppd, keyword, value))
        return false;
    return ppdMarkOption(ppd, keyword.constData(), value.constData()) != 0;
}

// Names of the printing protocol, which cupsMarkOptions() takes for other options.
bool isOfProtocol(const QByteArray &option)
{
    return isAny(option.constData(),
                 {"media", "output-bin", "output-mode", "print-quality", "sides", "resolution",
                  "printer-resolution", "multiple-document-handling", "finishings",
                  "finishing-template", "print-color-mode", "APPrinterPreset", "mirror"});
}

// Whether the choices are in conflict. To mark one option looks through all rules, so that those
// that can be are marked together.
bool markSelection(ppd_file_t *ppd, const PpdSelection &selection)
{
    ppdMarkDefaults(ppd);
    std::vector<std::pair<QByteArray, QByteArray>> together;
    const auto markTogether = [ppd, &together] {
        std::vector<cups_option_t> options;
        options.reserve(together.size());
        for (auto &[option, choice] : together)
            options.push_back({option.data(), choice.data()});
        const bool isInConflict =
            cupsMarkOptions(ppd, static_cast<int>(options.size()), options.data()) != 0;
        together.clear();
        return isInConflict;
    };
    for (auto choice = selection.cbegin(); choice != selection.cend(); ++choice) {
        QByteArray keyword = choice.key().toUtf8();
        QByteArray value = choice.value().toUtf8();
        if (!isOffered(ppd, keyword, value))
            continue;
        if (!isOfProtocol(keyword)) {
            together.emplace_back(std::move(keyword), std::move(value));
            continue;
        }
        markTogether(); // what is marked later counts, where one option takes another's mark
        ppdMarkOption(ppd, keyword.constData(), value.constData());
    }
    return together.empty() ? ppdConflicts(ppd) != 0 : markTogether();
}

// One part of a rule: an option at a choice, or anywhere but off.
struct Term
{
    const ppd_option_t *option;
    const char *choice; // null: any choice but None, Off and False
};

using Constraint = std::vector<Term>; // a conflict when every part holds

// Adds "option choice" to `constraint`; false when the PPD has no such thing. The
// custom choice of an option is written "*CustomOption True".
bool addTerm(ppd_file_t *ppd, const QByteArray &keyword, const QByteArray &choice,
             Constraint &constraint)
{
    const bool isCustom = keyword.startsWith("Custom") && qstricmp(choice.constData(), "True") == 0;
    ppd_option_t *option = ppdFindOption(ppd, keyword.mid(isCustom ? 6 : 0).constData());
    if (!option)
        return false;
    if (choice.isEmpty()) {
        constraint.push_back({option, nullptr});
        return true;
    }
    const ppd_choice_t *found = ppdFindChoice(option, isCustom ? "Custom" : choice.constData());
    if (!found)
        return false;
    constraint.push_back({option, found->choice});
    return true;
}

// The PPD's rules; those of the newer kind, of any number of options, replace
// those of the older, of two, where there are any. Rules about what the PPD
// lacks are left out.
std::vector<Constraint> constraintsOf(ppd_file_t *ppd)
{
    std::vector<Constraint> constraints;
    const ppd_attr_t *rule = ppdFindAttr(ppd, "cupsUIConstraints", nullptr);
    if (!rule) {
        for (int i = 0; i < ppd->num_consts; ++i) {
            const ppd_const_t &pair = ppd->consts[i];
            Constraint constraint;
            if (addTerm(ppd, pair.option1, pair.choice1, constraint)
                && addTerm(ppd, pair.option2, pair.choice2, constraint))
                constraints.push_back(std::move(constraint));
        }
        return constraints;
    }
    for (; rule; rule = ppdFindNextAttr(ppd, "cupsUIConstraints", nullptr)) {
        Constraint constraint;
        bool known = true;
        const QList<QByteArray> parts = QByteArray(rule->value).simplified().split('*');
        for (const QByteArray &part : parts.mid(1)) { // before the first star stands nothing
            const QList<QByteArray> words = part.trimmed().split(' ');
            known = known && addTerm(ppd, words.value(0), words.value(1), constraint);
        }
        if (known && !constraint.empty())
            constraints.push_back(std::move(constraint));
    }
    return constraints;
}

// Whether a part of a rule holds where its option is at `choice`.
bool holdsAt(const Term &term, const char *choice)
{
    return term.choice ? qstricmp(choice, term.choice) == 0
                       : !isAny(choice, {"None", "Off", "False"});
}

// Whether a part of a rule holds for the marks.
bool holds(ppd_file_t *ppd, const Term &term)
{
    if (term.choice && isAny(term.option->keyword, {"PageSize", "PageRegion"})) {
        const ppd_size_t *size = ppdPageSize(ppd, nullptr); // whichever of the two is marked
        return size && qstricmp(size->name, term.choice) == 0;
    }
    for (int i = 0; i < term.option->num_choices; ++i) {
        const ppd_choice_t &choice = term.option->choices[i];
        if (choice.marked && holdsAt(term, choice.choice))
            return true;
    }
    return false;
}

// What the fitted equipment forbids: the one part left of each rule whose other
// parts are installable options that stand as it says.
std::vector<Term> ruledOutByEquipment(ppd_file_t *ppd)
{
    QSet<const ppd_option_t *> equipment;
    for (int i = 0; i < ppd->num_groups; ++i) {
        if (isInstallable({textFrom(ppd->groups[i].name), {}, {}}))
            walk(ppd->groups[i], [&](const ppd_option_t &option) { equipment.insert(&option); });
    }
    std::vector<Term> ruledOut;
    for (Constraint &rule : constraintsOf(ppd)) {
        const auto met = std::erase_if(rule, [&](const Term &term) {
            return equipment.contains(term.option) && holdsAt(term, term.option->defchoice);
        });
        if (met > 0 && rule.size() == 1 && !equipment.contains(rule.front().option))
            ruledOut.push_back(rule.front());
    }
    return ruledOut;
}

// A list of options that libcups made.
class OptionList
{
public:
    OptionList() = default;
    ~OptionList() { cupsFreeOptions(count, options); }
    OptionList(const OptionList &) = delete;
    OptionList &operator=(const OptionList &) = delete;

    int count = 0;
    cups_option_t *options = nullptr;
};

} // namespace

struct PpdFile::Private
{
    ~Private()
    {
        if (copy >= 0)
            ::close(copy);
    }

    // libcups keeps in a PPD where it has looked last: held by whoever looks.
    std::mutex mutex;
    QString name; // in errors
    QString path; // empty: it was not read from a file
    QByteArray bytes;
    int copy = -1; // of `bytes`, for who asks for a path
    std::shared_ptr<ppd_file_t> ppd;
    // The same file again, for marks of its own, with its rules and its options
    // in their order. Opened when first asked for.
    std::shared_ptr<ppd_file_t> constraints;
    std::vector<Constraint> rules;
    std::vector<const ppd_option_t *> order;
    QHash<const ppd_option_t *, std::size_t> position;
    std::vector<PpdGroup> groups;
    QHash<const ppd_option_t *, const PpdOption *> options; // into groups
    std::vector<PpdPageSize> pageSizes;
    std::optional<std::vector<Term>> ruledOut; // by the equipment; once asked for

    // Null only when memory ran out: the same bytes were opened before.
    ppd_file_t *constraintMarks()
    {
        if (!constraints) {
            const auto opened = openBytes(withoutTranslations(bytes), name);
            if (!opened)
                return nullptr;
            constraints = opened.value();
            rules = constraintsOf(constraints.get());
            walk(*constraints, [this](const ppd_option_t &option) {
                position.insert(&option, order.size());
                order.push_back(&option);
            });
        }
        return constraints.get();
    }
};

const PpdChoice *PpdOption::findChoice(const QString &wanted) const
{
    const auto found = std::find_if(choices.begin(), choices.end(),
                                    [&](const PpdChoice &c) { return c.keyword == wanted; });
    return found == choices.end() ? nullptr : &*found;
}

bool isInstallable(const PpdGroup &group)
{
    // Both spellings are in the field.
    return group.name.compare(QLatin1String("InstallableOptions"), Qt::CaseInsensitive) == 0
        || group.name.compare(QLatin1String("Installable"), Qt::CaseInsensitive) == 0;
}

PpdFile::PpdFile()
    : d(std::make_unique<Private>())
{
}
PpdFile::~PpdFile() = default;

Result<std::shared_ptr<PpdFile>> PpdFile::open(const QString &path)
{
    auto bytes = readFile(path, limits::ppdBytes);
    if (!bytes)
        return bytes.error();
    auto file = fromBytes(std::move(bytes).value(), path);
    if (file)
        file.value()->d->path = path;
    return file;
}

Result<std::shared_ptr<PpdFile>> PpdFile::fromBytes(const QByteArray &bytes, const QString &name)
{
    if (bytes.size() > limits::ppdBytes)
        return Error{Code::TooLarge, name,
                     translate("Device", "more than %1 bytes").arg(limits::ppdBytes)};
    // libcups would unpack it, to any size.
    if (bytes.startsWith("\x1f\x8b"))
        return Error{Code::Unsupported, name,
                     translate("Device", "compressed; unpack it with gunzip first")};
    const PlainNumbers numbers;
    const QByteArray read = withoutTranslations(bytes);
    if (auto excess = findExcess(read, name))
        return *excess;
    auto opened = openBytes(read, name);
    if (!opened)
        return opened.error();
    if (auto cut = findCut(read, name))
        return *cut;

    std::shared_ptr<PpdFile> file(new PpdFile);
    Private &d = *file->d;
    d.name = name;
    d.bytes = bytes;
    d.ppd = opened.value();
    ppdMarkDefaults(d.ppd.get());
    d.pageSizes = pageSizesFrom(*d.ppd);
    const PpdTexts texts(d.ppd.get(), bytes);
    d.groups.reserve(static_cast<std::size_t>(d.ppd->num_groups));
    for (int i = 0; i < d.ppd->num_groups; ++i) {
        const ppd_group_t &group = d.ppd->groups[i];
        PpdGroup &copy =
            d.groups.emplace_back(PpdGroup{textFrom(group.name), texts.text(group), {}});
        std::vector<const ppd_option_t *> originals;
        walk(group, [&](const ppd_option_t &option) {
            originals.push_back(&option);
            copy.options.push_back(optionFrom(option, texts));
        });
        for (std::size_t at = 0; at < originals.size(); ++at)
            d.options.insert(originals[at], &copy.options[at]);
    }
    return file;
}

QString PpdFile::path() const
{
    const std::lock_guard lock(d->mutex);
    if (!d->path.isEmpty())
        return d->path;
    if (d->copy < 0)
        d->copy = fileInMemory(d->bytes);
    return d->copy < 0 ? QString() : QStringLiteral("/proc/self/fd/%1").arg(d->copy);
}

QString PpdFile::manufacturer() const
{
    return textFrom(d->ppd->manufacturer);
}

QString PpdFile::modelName() const
{
    const char *nickname = d->ppd->nickname;
    return textFrom(nickname && *nickname ? nickname : d->ppd->modelname);
}

QString PpdFile::languageEncoding() const
{
    return textFrom(d->ppd->lang_encoding);
}

std::optional<QString> PpdFile::attribute(const char *keyword, const QString &part) const
{
    const std::lock_guard lock(d->mutex);
    const ppd_attr_t *attribute =
        ppdFindAttr(d->ppd.get(), keyword, part.isEmpty() ? nullptr : part.toUtf8().constData());
    if (!attribute || !attribute->value)
        return std::nullopt;
    return textFrom(attribute->value);
}

QStringList PpdFile::attributes(const char *keyword) const
{
    const std::lock_guard lock(d->mutex);
    QStringList values;
    for (const ppd_attr_t *attribute = ppdFindAttr(d->ppd.get(), keyword, nullptr); attribute;
         attribute = ppdFindNextAttr(d->ppd.get(), keyword, nullptr)) {
        if (attribute->value)
            values << textFrom(attribute->value);
    }
    return values;
}

QString PpdFile::code(const QString &option, const QString &choice) const
{
    const std::lock_guard lock(d->mutex);
    ppd_option_t *found = ppdFindOption(d->ppd.get(), option.toUtf8().constData());
    const ppd_choice_t *known = found ? ppdFindChoice(found, choice.toUtf8().constData()) : nullptr;
    return known && known->code ? textFrom(known->code) : QString();
}

const std::vector<PpdGroup> &PpdFile::groups() const
{
    return d->groups;
}

const PpdOption *PpdFile::findOption(const QString &keyword) const
{
    const std::lock_guard lock(d->mutex);
    return d->options.value(ppdFindOption(d->ppd.get(), keyword.toUtf8().constData()));
}

bool PpdFile::isRuledOutByEquipment(const QString &option, const QString &choice) const
{
    const std::lock_guard lock(d->mutex);
    if (!d->ruledOut)
        d->ruledOut = ruledOutByEquipment(d->ppd.get());
    const ppd_option_t *found = ppdFindOption(d->ppd.get(), option.toUtf8().constData());
    const QByteArray keyword = choice.toUtf8();
    return std::ranges::any_of(*d->ruledOut, [&](const Term &term) {
        return term.option == found && holdsAt(term, keyword.constData());
    });
}

const std::vector<PpdPageSize> &PpdFile::pageSizes() const
{
    return d->pageSizes;
}

const PpdPageSize *PpdFile::findPageSize(const QString &name) const
{
    const auto found = std::find_if(d->pageSizes.begin(), d->pageSizes.end(),
                                    [&](const PpdPageSize &size) { return size.name == name; });
    return found == d->pageSizes.end() ? nullptr : &*found;
}

std::optional<CustomPageLimits> PpdFile::customPageLimits() const
{
    const ppd_file_t &ppd = *d->ppd;
    const CustomPageLimits limits{ppd.custom_min[0], ppd.custom_min[1], ppd.custom_max[0],
                                  ppd.custom_max[1]};
    // Comparisons that NaN fails too.
    const bool plausible = limits.minWidth >= 0 && limits.minHeight >= 0 && limits.maxWidth > 0
        && limits.maxHeight > 0 && limits.minWidth <= limits.maxWidth
        && limits.minHeight <= limits.maxHeight && std::isfinite(limits.maxWidth)
        && std::isfinite(limits.maxHeight);
    if (!ppd.variable_sizes || !plausible)
        return std::nullopt;
    return limits;
}

void PpdFile::markDefaults()
{
    const std::lock_guard lock(d->mutex);
    ppdMarkDefaults(d->ppd.get());
}

bool PpdFile::mark(const QString &option, const QString &choice)
{
    const std::lock_guard lock(d->mutex);
    return kelvo::mark(d->ppd.get(), option, choice);
}

std::optional<QString> PpdFile::markedChoice(const QString &option) const
{
    const std::lock_guard lock(d->mutex);
    const ppd_choice_t *choice = ppdFindMarkedChoice(d->ppd.get(), option.toUtf8().constData());
    if (!choice)
        return std::nullopt;
    return textFrom(choice->choice);
}

std::vector<PpdConflict> PpdFile::conflicts(const PpdSelection &selection)
{
    const std::lock_guard lock(d->mutex);
    ppd_file_t *ppd = d->constraintMarks();
    if (!ppd)
        return {};
    if (!markSelection(ppd, selection))
        return {};

    // libcups tells which options are in any conflict, but not which of them in
    // the same one; that stands in the rules.
    std::set<std::vector<std::size_t>> found; // positions: each conflict once, in the PPD's order
    for (const Constraint &rule : d->rules) {
        if (!std::all_of(rule.begin(), rule.end(),
                         [ppd](const Term &term) { return holds(ppd, term); }))
            continue;
        std::vector<std::size_t> options;
        for (const Term &term : rule)
            options.push_back(d->position.value(term.option));
        std::sort(options.begin(), options.end());
        found.insert(std::move(options));
    }
    if (found.empty()) { // a rule of a form that only libcups knows
        std::vector<std::size_t> options;
        for (std::size_t at = 0; at < d->order.size(); ++at) {
            if (d->order[at]->conflicted)
                options.push_back(at);
        }
        found.insert(std::move(options));
    }

    std::vector<PpdConflict> conflicts;
    for (const auto &options : found) {
        PpdConflict &conflict = conflicts.emplace_back();
        for (const std::size_t at : options)
            conflict.options << textFrom(d->order[at]->keyword);
    }
    return conflicts;
}

std::optional<PpdSelection> PpdFile::resolve(const PpdSelection &selection, const QString &keep)
{
    const std::lock_guard lock(d->mutex);
    ppd_file_t *ppd = d->constraintMarks();
    if (!ppd)
        return std::nullopt;
    if (!markSelection(ppd, selection))
        return PpdSelection();

    const QByteArray kept = keep.toUtf8();
    const ppd_choice_t *keptChoice =
        kept.isEmpty() ? nullptr : ppdFindMarkedChoice(ppd, kept.constData());
    // First with what the user has just set; where that must give way, without.
    for (const ppd_choice_t *fixed : {keptChoice, static_cast<const ppd_choice_t *>(nullptr)}) {
        OptionList found;
        const int resolved =
            cupsResolveConflicts(ppd, fixed ? kept.constData() : nullptr,
                                 fixed ? fixed->choice : nullptr, &found.count, &found.options);
        if (!resolved)
            continue;
        PpdSelection changes;
        for (int i = 0; i < found.count; ++i) {
            const cups_option_t &change = found.options[i];
            const ppd_choice_t *now = ppdFindMarkedChoice(ppd, change.name);
            if (!now || std::strcmp(now->choice, change.value) != 0)
                changes.insert(textFrom(change.name), textFrom(change.value));
        }
        // Believed only when it really ends every conflict.
        for (auto change = changes.cbegin(); change != changes.cend(); ++change)
            kelvo::mark(ppd, change.key(), change.value());
        if (ppdConflicts(ppd) == 0)
            return changes;
        markSelection(ppd, selection);
    }
    return std::nullopt;
}

} // namespace kelvo
