#pragma once

#include <QTextBrowser>

namespace kelvo {

class HelpBook;

// Shows pages of a help book and nothing else: links that lead elsewhere are not followed.
//
// Pages name the pictures of their bundle as <img src="picture:Covers_Front.svg">, several on
// top of one another with a plus sign between them, the lowest first. They are three lines of
// text high, or less where they are made for less, and sharp at any device pixel ratio.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    // The book is asked as long as the browser lives.
    HelpBrowser(const HelpBook &book, QWidget *parent);

    // `page` may end in "#section"; empty is the contents. False when the book has none.
    bool showPage(const QString &page);

    QVariant loadResource(int type, const QUrl &name) override;

signals:
    // Why a link was not followed; empty when one was.
    void said(const QString &text);

protected:
    void doSetSource(const QUrl &name, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent *event) override;

private:
    void setLook();
    QUrl findPage(const QString &page) const;
    QUrl findFile(const QUrl &url) const;
    QPixmap picture(const QStringList &names) const;

    const HelpBook &m_book;
};

} // namespace kelvo
