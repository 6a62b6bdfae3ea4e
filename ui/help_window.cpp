#include "help_window.h"

#include "control_support.h"
#include "notice.h"
#include "texts.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QStyle>
#include <QTextBrowser>
#include <QToolButton>
#include <QVBoxLayout>

namespace kelvo {

namespace {

constexpr char contentsPage[] = "index.html";

// Canonical paths of the registered books and, after them, of the host's folders.
struct HelpFolders
{
    QStringList books;
    QStringList others;

    QStringList all() const { return books + others; }
};

HelpFolders &helpFolders()
{
    static HelpFolders folders;
    return folders;
}

// Whether `file` is a file of the help folders, links followed.
bool isHelpFile(const QString &file)
{
    const QString path = QFileInfo(file).canonicalFilePath();
    const QStringList folders = helpFolders().all();
    return !path.isEmpty()
        && std::any_of(folders.begin(), folders.end(),
                       [&path](const QString &folder) { return path.startsWith(folder + u'/'); });
}

// The file of `page`, which may end in "#section"; empty when no book has it.
QUrl findPage(const QString &page)
{
    const QString path = page.section(u'#', 0, 0);
    const QString name = path.isEmpty() ? QString::fromLatin1(contentsPage) : path;
    const QStringList folders = helpFolders().all();
    for (const QString &folder : folders) {
        const QFileInfo file(folder + u'/' + name);
        if (file.isFile() && file.isReadable() && isHelpFile(file.filePath())) {
            QUrl url = QUrl::fromLocalFile(file.canonicalFilePath());
            if (page.contains(u'#'))
                url.setFragment(page.section(u'#', 1));
            return url;
        }
    }
    return {};
}

// Shows files of the help folders and nothing else.
class HelpBrowser : public QTextBrowser
{
public:
    HelpBrowser(QLabel *message, QWidget *parent)
        : QTextBrowser(parent)
        , m_message(message)
    {
        setOpenExternalLinks(false);
        setAccessibleName(translate("Help", "Help page"));
        colourLinks();
    }

    void sayMissing(const QString &page)
    {
        say(translate("Help", "The help has no page \"%1\".").arg(page));
    }

    // Dark themes often leave links the dark blue of white pages.
    void colourLinks()
    {
        QColor link = palette().color(QPalette::Link);
        constexpr int light = 190, middle = 128; // of 255
        if (palette().color(QPalette::Base).lightness() < middle && link.lightness() < light)
            link.setHsl(link.hslHue(), link.hslSaturation(), light);
        document()->setDefaultStyleSheet(QStringLiteral("a { color: %1 }").arg(link.name()));
    }

    QVariant loadResource(int type, const QUrl &name) override
    {
        const QUrl url = source().resolved(name);
        return url.isLocalFile() && isHelpFile(url.toLocalFile())
            ? QTextBrowser::loadResource(type, url)
            : QVariant();
    }

protected:
    void doSetSource(const QUrl &name, QTextDocument::ResourceType type) override
    {
        const QUrl url = source().resolved(name);
        if (!url.isLocalFile())
            say(translate("Help", "This address is outside the help: %1")
                    .arg(url.toDisplayString()));
        else if (!isHelpFile(url.toLocalFile()))
            sayMissing(url.fileName());
        else {
            say({});
            QTextBrowser::doSetSource(url, type);
        }
    }

private:
    void say(const QString &text)
    {
        m_message->setText(text);
        m_message->setVisible(!text.isEmpty());
    }

    QLabel *m_message;
};

class HelpWindow : public QDialog
{
public:
    HelpWindow()
        : m_message(new QLabel(this))
        , m_browser(new HelpBrowser(m_message, this))
    {
        setObjectName(QStringLiteral("helpWindow"));
        setModal(false);
        m_message->setTextFormat(Qt::PlainText);
        m_message->setTextInteractionFlags(Qt::TextSelectableByMouse
                                           | Qt::TextSelectableByKeyboard);
        m_message->setWordWrap(true);
        m_message->setFrameShape(QFrame::StyledPanel);
        m_message->setVisible(false);

        QToolButton *back =
            addTool(translate("Help", "Back"), QStyle::SP_ArrowBack, QKeySequence::Back);
        QToolButton *forward =
            addTool(translate("Help", "Forward"), QStyle::SP_ArrowForward, QKeySequence::Forward);
        QToolButton *contents = addTool(translate("Help", "Contents"), QStyle::SP_DirHomeIcon,
                                        QKeySequence(Qt::ALT | Qt::Key_Home));
        back->setEnabled(false);
        forward->setEnabled(false);
        m_tools->addStretch(1);

        auto *column = new QVBoxLayout(this);
        column->addLayout(m_tools);
        column->addWidget(m_browser, 1);
        column->addWidget(m_message);
        m_browser->setFocus();

        connect(back, &QToolButton::clicked, m_browser, &QTextBrowser::backward);
        connect(forward, &QToolButton::clicked, m_browser, &QTextBrowser::forward);
        connect(contents, &QToolButton::clicked, this, [this] { turnTo(findPage({})); });
        connect(m_browser, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
        connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
        connect(m_browser, &QTextBrowser::sourceChanged, this, [this] {
            const QString title = m_browser->documentTitle();
            setWindowTitle(title.isEmpty() ? translate("Help", "Help") : title);
        });

        const QFontMetrics metrics = fontMetrics();
        resize(metrics.averageCharWidth() * 90, metrics.lineSpacing() * 32);
    }

    void turnTo(const QUrl &page)
    {
        if (page.isValid())
            m_browser->setSource(page);
        else
            m_browser->sayMissing(QString::fromLatin1(contentsPage));
    }

    // A window is usable while a modal dialog is open only when that dialog owns
    // it, and goes with its owner: so it moves on when the owner closes.
    void setOwner(QWidget *owner)
    {
        if (owner == parentWidget())
            return;
        if (parentWidget())
            parentWidget()->removeEventFilter(this);
        if (owner)
            owner->installEventFilter(this);
        setParent(owner, windowFlags());
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == parentWidget() && event->type() == QEvent::Hide && isVisible()) {
            const QWidget *owner = parentWidget();
            setOwner(owner->parentWidget() ? owner->parentWidget()->window() : nullptr);
            setAttribute(Qt::WA_ShowWithoutActivating);
            show();
            setAttribute(Qt::WA_ShowWithoutActivating, false);
        }
        return QDialog::eventFilter(watched, event);
    }

private:
    QToolButton *addTool(const QString &text, QStyle::StandardPixmap icon, const QKeySequence &keys)
    {
        auto *tool = new QToolButton(this);
        tool->setText(text);
        tool->setIcon(style()->standardIcon(icon, nullptr, this));
        tool->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        tool->setAutoRaise(true);
        tool->setShortcut(keys);
        m_tools->addWidget(tool);
        return tool;
    }

    QHBoxLayout *m_tools = new QHBoxLayout;
    QLabel *m_message;
    HelpBrowser *m_browser;
};

// Who must own the help window that is opened now.
QWidget *ownerFor(QWidget *parent)
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    return parent ? parent->window() : nullptr;
}

void addFolder(QStringList &folders, const QString &folder)
{
    const QString path = QFileInfo(folder).canonicalFilePath();
    if (!path.isEmpty() && !folders.contains(path))
        folders.append(path);
}

} // namespace

OSStatus AHRegisterHelpBook(CFBundleRef bundle)
{
    if (!bundle)
        return paramErr;
    const QFileInfo folder(bundle->resourcesPath() + QStringLiteral("/help"));
    if (!folder.isDir() || !folder.isReadable())
        return fnfErr;
    addFolder(helpFolders().books, folder.filePath());
    return noErr;
}

OSStatus DisplayHelp(const QString &page, QWidget *parent)
{
    const QUrl url = findPage(page);
    if (!url.isValid())
        return fnfErr;
    static QPointer<HelpWindow> window;
    if (!window)
        window = new HelpWindow;
    if (QWidget *owner = ownerFor(parent))
        window->setOwner(owner);
    window->turnTo(url);
    window->show();
    window->raise();
    window->activateWindow();
    return noErr;
}

OSStatus showHelp(const QString &page, QWidget *parent)
{
    const OSStatus status = DisplayHelp(page, parent);
    if (status == noErr)
        return status;
    const QStringList folders = helpFolders().all();
    const QString missing = folders.isEmpty()
        ? translate("Help",
                    "The folder with the help pages is missing. Install the software again, or "
                    "tell your administrator.")
        : translate("Help",
                    "The page “%1” is missing in %2. Install the software again, or tell your "
                    "administrator.")
              .arg(page.isEmpty() ? QString::fromLatin1(contentsPage) : page,
                   folders.join(QStringLiteral(", ")));
    CFUserNotificationDisplayNotice(
        NoticeLevel::Caution, translate("Help", "There is no help for this"), missing, {}, parent);
    return status;
}

void addHelpFolder(const QString &folder)
{
    addFolder(helpFolders().others, folder);
}

} // namespace kelvo
