#include "help_window.h"

#include "help_book.h"
#include "help_browser.h"
#include "help_results.h"
#include "help_search.h"
#include "modal_dialog.h"
#include "notice.h"
#include "texts.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

namespace kelvo {

namespace {

HelpBook &helpBook()
{
    static HelpBook book(QLocale().uiLanguages());
    return book;
}

class HelpWindow : public QDialog
{
public:
    HelpWindow()
        : m_tools(new QHBoxLayout)
        , m_field(new QLineEdit(this))
        , m_results(new HelpResults(this))
        , m_browser(new HelpBrowser(helpBook(), this))
        , m_sides(new QBoxLayout(QBoxLayout::LeftToRight))
        , m_message(new QLabel(this))
    {
        setObjectName(QStringLiteral("helpWindow"));
        setModal(false);
        addTools();
        makeSearchField();
        m_results->hide();
        m_message->setTextFormat(Qt::PlainText);
        m_message->setTextInteractionFlags(Qt::TextSelectableByMouse
                                           | Qt::TextSelectableByKeyboard);
        m_message->setWordWrap(true);
        m_message->setFrameShape(QFrame::StyledPanel);
        m_message->setVisible(false);

        m_sides->addWidget(m_results, 1);
        m_sides->addWidget(m_browser, 2);
        auto *column = new QVBoxLayout(this);
        column->addLayout(m_tools);
        column->addLayout(m_sides, 1);
        column->addWidget(m_message);
        m_browser->setFocus();

        connect(m_browser, &HelpBrowser::said, this, &HelpWindow::say);
        connect(m_browser, &QTextBrowser::sourceChanged, this, [this] {
            const QString title = m_browser->documentTitle();
            setWindowTitle(title.isEmpty() ? translate("Help", "Help") : title);
        });
        connect(m_results, &HelpResults::chosen, m_browser, &HelpBrowser::showPage);
        connect(this, &QDialog::finished, this, [this] { activateAgain(parentWidget()); });

        constexpr double mostOfScreen = 0.9; // its frame has room, too
        const QSize wanted(fontMetrics().averageCharWidth() * 90, fontMetrics().lineSpacing() * 32);
        resize(wanted.boundedTo(screen()->availableSize() * mostOfScreen));
    }

    // As DisplayHelp() takes it; false when there is none.
    bool turnTo(const QString &page) { return m_browser->showPage(page); }

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
        if (watched == m_field && event->type() == QEvent::KeyPress
            && takeSearchKey(static_cast<QKeyEvent *>(event)->key()))
            return true;
        return QDialog::eventFilter(watched, event);
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        // Escape closes the window when there is no search to end.
        if (event->key() == Qt::Key_Escape && !m_field->text().isEmpty())
            m_field->clear();
        else
            QDialog::keyPressEvent(event);
    }

    void resizeEvent(QResizeEvent *event) override
    {
        // In a narrow window neither the list nor the page would have the room for its lines.
        constexpr int fewestCharacters = 70;
        const bool isNarrow = width() < fontMetrics().averageCharWidth() * fewestCharacters;
        m_sides->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
        QDialog::resizeEvent(event);
    }

private:
    void addTools()
    {
        QToolButton *back =
            addTool(translate("Help", "Back"), QStyle::SP_ArrowBack, QKeySequence::Back);
        QToolButton *forward =
            addTool(translate("Help", "Forward"), QStyle::SP_ArrowForward, QKeySequence::Forward);
        QToolButton *contents = addTool(translate("Help", "Contents"), QStyle::SP_DirHomeIcon,
                                        QKeySequence(Qt::ALT | Qt::Key_Home));
        back->setEnabled(false);
        forward->setEnabled(false);
        connect(back, &QToolButton::clicked, m_browser, &QTextBrowser::backward);
        connect(forward, &QToolButton::clicked, m_browser, &QTextBrowser::forward);
        connect(contents, &QToolButton::clicked, this, [this] { turnTo({}); });
        connect(m_browser, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
        connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    }

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

    void makeSearchField()
    {
        m_field->setObjectName(QStringLiteral("helpSearch"));
        m_field->setPlaceholderText(translate("Help", "Search"));
        m_field->setAccessibleName(translate("Help", "Search in the help"));
        m_field->setClearButtonEnabled(true);
        m_field->setMinimumWidth(fontMetrics().averageCharWidth() * 16);
        m_field->setMaximumWidth(fontMetrics().averageCharWidth() * 40);
        m_field->installEventFilter(this);
        m_tools->addStretch(1);
        m_tools->addWidget(m_field, 2);
        connect(m_field, &QLineEdit::textChanged, this, &HelpWindow::search);
        auto *find = new QShortcut(QKeySequence::Find, this);
        connect(find, &QShortcut::activated, this, [this] {
            m_field->setFocus(Qt::ShortcutFocusReason);
            m_field->selectAll();
        });
    }

    void search()
    {
        const QString typed = m_field->text().simplified();
        // Read when first asked: most people come for one page.
        if (!m_search && !typed.isEmpty())
            m_search.emplace(helpTexts(helpBook()));
        if (!typed.isEmpty())
            m_results->setHits(m_search->find(typed));
        m_results->setVisible(!typed.isEmpty());
    }

    // Whether `key` in the search field is for what was found.
    bool takeSearchKey(int key)
    {
        switch (key) {
        case Qt::Key_Up:
        case Qt::Key_Down:
            m_results->moveBy(key == Qt::Key_Up ? -1 : 1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            m_results->chooseCurrent();
            return true;
        default:
            return false;
        }
    }

    void say(const QString &text)
    {
        m_message->setText(text);
        m_message->setVisible(!text.isEmpty());
    }

    QHBoxLayout *m_tools;
    QLineEdit *m_field;
    HelpResults *m_results;
    HelpBrowser *m_browser;
    QBoxLayout *m_sides; // what was found, and the page
    QLabel *m_message;
    std::optional<HelpSearch> m_search;
};

// Who must own the help window that is opened now.
QWidget *ownerFor(QWidget *parent)
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    return parent ? parent->window() : nullptr;
}

} // namespace

OSStatus AHRegisterHelpBook(CFBundleRef bundle)
{
    if (!bundle)
        return paramErr;
    const QFileInfo folder(bundle->resourcesPath() + QStringLiteral("/help"));
    if (!folder.isDir() || !folder.isReadable())
        return fnfErr;
    helpBook().addFolder(folder.filePath());
    return noErr;
}

OSStatus DisplayHelp(const QString &page, QWidget *parent)
{
    static QPointer<HelpWindow> window;
    if (!window)
        window = new HelpWindow;
    if (!window->turnTo(page))
        return fnfErr;
    if (QWidget *owner = ownerFor(parent))
        window->setOwner(owner);
    window->show();
    window->raise();
    activate(window);
    return noErr;
}

OSStatus showHelp(const QString &page, QWidget *parent)
{
    const OSStatus status = DisplayHelp(page, parent);
    if (status == noErr)
        return status;
    const QStringList folders = helpBook().folders();
    const QString missing = folders.isEmpty()
        ? translate("Help",
                    "The folder with the help pages is missing. Install the software again, or "
                    "tell your administrator.")
        : translate("Help",
                    "The page “%1” is missing in %2. Install the software again, or tell your "
                    "administrator.")
              .arg(page.isEmpty() ? QStringLiteral("index.html") : page,
                   folders.join(QStringLiteral(", ")));
    CFUserNotificationDisplayNotice(
        NoticeLevel::Caution, translate("Help", "There is no help for this"), missing, {}, parent);
    return status;
}

QString helpPageOf(const QWidget *widget)
{
    const auto pageOf = [](const QWidget *each) { return each->property("helpPage").toString(); };
    if (const QString page = pageOf(widget); !page.isEmpty())
        return page;
    const auto contents = widget->findChildren<QWidget *>();
    const auto found = std::ranges::find_if(contents, [widget, pageOf](const QWidget *each) {
        return !pageOf(each).isEmpty() && each->isVisibleTo(widget);
    });
    return found == contents.end() ? QString() : pageOf(*found);
}

void addHelpFolder(const QString &folder)
{
    helpBook().addFolder(folder);
}

} // namespace kelvo
