#pragma once

#include "document_opening.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

namespace kelvo {

// What the user prints: one document or several, each a job of its own, or all of them one.
// One is looked at; where they are joined, that is all of them. Documents are numbered from 0.
class SessionDocuments : public QObject
{
    Q_OBJECT

public:
    struct Beginning
    {
        std::vector<DocumentSource> sources; // none: there is nothing to print
        QString title = {};                  // -t; empty: each is called as its file
        bool areJoined = false;
        // In place of the first source: one that is being opened already.
        std::shared_ptr<DocumentOpening> opening = {};
    };
    explicit SessionDocuments(Beginning beginning, QObject *parent = nullptr);
    ~SessionDocuments() override; // cancels

    void open(); // all of them, two at once; what is added later opens by itself
    void cancel();

    int count() const { return int(m_all.size()); } // at least 1, which may have no source
    const DocumentOpening &at(int index) const { return *m_all[std::size_t(index)].opening; }
    // What the job of the one that is looked at is called.
    QString title() const;

    // The one that is looked at: another one, or all of them joined.
    const DocumentOpening &shown() const;
    int shownIndex() const { return m_shown; }
    void show(int index);

    // Nothing where there is one.
    bool areJoined() const { return m_areJoined && count() > 1; }
    void join(bool joins);

    void add(std::vector<DocumentSource> sources);
    void remove(int index); // but the last one

    // For one that asks for a password; see DocumentOpening::unlock().
    void unlockShown(const QString &password);

    // Whether one is still on its way, and why the first that cannot be printed cannot; empty
    // when all can.
    bool isPending() const;
    QString problem() const;
    const DocumentOpening *findFaulty() const; // that one; null for none

    // Where the job of a document went; empty: it has not been sent.
    const QString &placeOf(int index) const { return m_all[std::size_t(index)].place; }
    void noteSent(int index, const QString &place);
    // The jobs that are still to be sent: one number where there is one job.
    std::vector<int> unsent() const;

signals:
    void shownChanged(); // another one is looked at, or that one is open now, or cannot be
    void listChanged();  // which there are, whether they are joined, and what is known of each

private:
    struct Entry
    {
        std::shared_ptr<DocumentOpening> opening; // never null
        QString place;
    };
    void append(const std::optional<DocumentSource> &source);
    void watch(DocumentOpening &opening);
    void takeEnd();
    void openNext();
    void joinAnew();

    std::vector<Entry> m_all;
    std::shared_ptr<DocumentOpening> m_joined; // null: not made, or not any more
    const QString m_title;
    int m_shown = 0;
    bool m_areJoined = false;
    bool m_areOpened = false;
};

} // namespace kelvo
