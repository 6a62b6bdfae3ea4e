#include "help_browser.h"

#include "help_book.h"
#include "pictures.h"
#include "texts.h"

#include <QDir>
#include <QEvent>
#include <QLocale>

namespace kelvo {

namespace {

constexpr char contentsPage[] = "index.html";
const QLatin1String pictureScheme("picture");

} // namespace

HelpBrowser::HelpBrowser(const HelpBook &book, QWidget *parent)
    : QTextBrowser(parent)
    , m_book(book)
{
    setOpenExternalLinks(false);
    setWordWrapMode(QTextOption::WordWrap); // or narrow cells would break words
    setAccessibleName(translate("Help", "Help page"));
    document()->setDocumentMargin(fontMetrics().lineSpacing() / 2.0);
    setLook();
}

bool HelpBrowser::showPage(const QString &page)
{
    const QUrl url = findPage(page);
    if (url.isValid())
        setSource(url);
    return url.isValid();
}

QUrl HelpBrowser::findPage(const QString &page) const
{
    const QString path = page.section(u'#', 0, 0);
    const QString file = m_book.findFile(path.isEmpty() ? QString::fromLatin1(contentsPage) : path);
    if (file.isEmpty())
        return {};
    QUrl url = QUrl::fromLocalFile(file);
    if (page.contains(u'#'))
        url.setFragment(page.section(u'#', 1));
    return url;
}

// Pages name one another as if all were in one language.
QUrl HelpBrowser::findFile(const QUrl &url) const
{
    const QString page = url.isLocalFile() ? m_book.pageOf(url.toLocalFile()) : QString();
    QUrl found = page.isEmpty() ? QUrl() : findPage(page);
    if (found.isValid())
        found.setFragment(url.fragment());
    return found;
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name)
{
    if (name.scheme() == pictureScheme)
        return picture(name.path().split(u'+'));
    const QUrl url = findFile(source().resolved(name));
    return url.isValid() ? QTextBrowser::loadResource(type, url) : QVariant();
}

QPixmap HelpBrowser::picture(const QStringList &names) const
{
    QStringList files;
    for (const QString &name : names) {
        for (const QString &folder : m_book.folders())
            files << pictureFile(QDir::cleanPath(folder + QStringLiteral("/..")), name);
    }
    const QSize drawn = pictureSize(files);
    if (drawn.isEmpty())
        return {};
    constexpr double linePixels = 16; // of a line of text beside which pictures have their size
    constexpr double mostLines = 3;
    const double lines = std::min(mostLines, drawn.height() / linePixels);
    const int height = qRound(lines * fontMetrics().lineSpacing());
    return drawnPictures(files, drawn.scaled(height * drawn.width(), height, Qt::KeepAspectRatio),
                         devicePixelRatioF());
}

void HelpBrowser::doSetSource(const QUrl &name, QTextDocument::ResourceType type)
{
    const QUrl wanted = source().resolved(name);
    const QUrl url = findFile(wanted);
    if (url.isValid()) {
        emit said({});
        // A page that is not translated runs as its own language does.
        setLayoutDirection(QLocale(m_book.languageOf(url.toLocalFile())).textDirection());
        QTextBrowser::doSetSource(url, type);
    } else if (wanted.isLocalFile()) {
        emit said(translate("Help", "The help has no page “%1”.").arg(wanted.fileName()));
    } else {
        emit said(translate("Help", "This address is outside the help: %1")
                      .arg(wanted.toDisplayString()));
    }
}

void HelpBrowser::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange)
        return;
    setLook();
    if (source().isValid())
        reload();
}

void HelpBrowser::setLook()
{
    // Dark themes often leave links the dark blue of white pages.
    QColor link = palette().color(QPalette::Link);
    constexpr int light = 190, middle = 128; // of 255
    if (palette().color(QPalette::Base).lightness() < middle && link.lightness() < light)
        link.setHsl(link.hslHue(), link.hslSaturation(), light);
    document()->setDefaultStyleSheet(
        QStringLiteral("a{color:%1}"
                       "h1{font-size:x-large}"
                       "h2{font-size:large;margin-top:16px;margin-bottom:4px}"
                       "td{padding:4px;vertical-align:middle}")
            .arg(link.name()));
}

} // namespace kelvo
