#pragma once

#include "asked_settings.h"
#include "conflicts.h"
#include "device_panels.h"
#include "document.h"
#include "job_describer.h"
#include "job_settings.h"
#include "job_timing.h"
#include "presets.h"
#include "printed_pages.h"
#include "secret_keys.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>

#include <memory>
#include <optional>
#include <vector>

namespace kelvo {

// The settings of one job, on one device after another: its tickets as the panels and
// the host's own controls edit them, and what of them somebody asked for.
//
// A device's life here: beginOn(), settle() when its panels have begun, leave(). Before
// settle() there are tickets, and nothing else to ask for.
class SessionJob : public QObject
{
    Q_OBJECT

public:
    // What is asked for before anybody sees the job. The site's default preset comes
    // before all of it, and each of these beats the one before.
    struct Wishes
    {
        std::optional<TicketFile> preset, ticketIn;
        std::optional<TicketFile> lastUsed = {}; // before a preset
        QList<AskedOption> options = {};         // see applyOption()
        std::optional<int> copies;               // 1 to kMaximumCopies
        std::optional<QString> pages;            // "1-3,7"; empty: all
    };
    // Borrowed: the bundle says what of tickets is secret and what it means, `panels`
    // read and write them. Null for both: none.
    SessionJob(Wishes wishes, Bundle *bundle, DevicePanels *panels, QObject *parent = nullptr);

    // Others than those it was made with: before settle(), for the device that is begun.
    void setPanels(DevicePanels *panels) { m_panels = panels; }

    struct Device
    {
        QString name;                    // of the queue, or the device without one
        std::shared_ptr<PpdFile> ppd;    // null: none
        QMap<QString, QString> defaults; // the queue's own: option → value
    };
    // Makes its tickets. An error is of the first device: the wishes have an option that it
    // cannot do.
    Result<void> beginOn(Device device);
    // Lays on them what was asked for, on this device or an earlier one.
    void settle();
    bool isSettled() const { return m_isSettled; }
    // The panels write once more; what was set goes along to the next device, where its
    // words go too.
    void leave();
    // What the job is called, in its tickets too.
    void setTitle(const QString &title);
    // The document, of which the panels are told the first page that is printed.
    void setDocument(const Document &document);

    PrintSession &tickets() { return *m_session; } // another one on each device
    const PpdFile *ppd() const { return m_device.ppd.get(); }

    // Every panel writes, the shown one last. What is different then, the user has set.
    void writeAll();
    void readAll();
    JobSettings settings() const;
    bool isTwoSided() const;
    // What goes out of the document, which is there. OutOfRange or Damaged for pages that it
    // does not have; where all are left out that were chosen, too.
    Result<PrintedPages> printedPages();
    // The host's own settings; panels write before. They do not read: a ticket may
    // hold less of a panel's setting than the user chose there, and more copies must
    // not take it away. A panel looks at the page format when it writes.
    void change(const JobSettings &settings);
    JobTiming timing() const;
    void setTiming(const JobTiming &timing); // as change()
    // By hand or by a script; taken up when the panels write next.
    void choose(const TicketPlaces &places) { m_edits.asked.choose(places); }

    TicketFile ticket() const;       // as it stands
    TicketFile ticketToKeep() const; // the same, for another day and device
    TicketFile preset() const;       // the part of it that a preset keeps; secrets are in it

    // Begins again on `preset`, or on the defaults for null. The job's own pages,
    // its hold and its name stay.
    void usePreset(const TicketFile *preset);
    // Whether anything differs from what was chosen as preset.
    bool isChanged() const;
    // The settings as they stand are what the preset says, or are not any more.
    void takeAsUnchanged();
    void takeAsChanged() { m_edits.asked.takeAsChanged(); }

    QStringList missing() const; // what is asked for and this device lacks, in words
    QStringList untold();        // and what only a ticket says, where it reads none
    QStringList lost();          // and what names something that is not there, a sentence each

    ConflictReport conflicts(); // as the ticket stands
    void fix(const ConflictReport &report);

    // Everything that the user can have set, to come back to on the same device: after a
    // restore() the tickets, what was asked for and isChanged() are what they were. Panels
    // write before snapshot(); of what they keep besides the ticket nothing is known here.
    struct Snapshot;
    Snapshot snapshot() const;
    void restore(const Snapshot &snapshot);

    // What the bundle says of tickets.
    const SecretKeys &secretKeys() const { return m_secretKeys; }
    // What the job means as its tickets stand, in words and sheets. Not asked for before
    // the first frame, which needs none of it. Valid until it is asked for again.
    const JobDescription &description();

signals:
    void reloaded(); // by usePreset() and restore(): every setting may have changed

private:
    // What of this goes into a snapshot, beside the tickets.
    struct Edits
    {
        AskedSettings asked;
        Dictionary unknown;     // root entries of the preset and the ticket that came in
        PPDDictionary lookedAt; // when conflicts were looked for the last time
        QStringList lastSet;    // options, the one set last first
    };

    TicketFile queueDefaults();
    TicketFile firstWrites();
    Result<void> askFirst();
    void askForSiteDefaults();
    void ask(const TicketFile &file, AskedSettings::Kind kind);
    Result<void> askForOption(const AskedOption &option);
    void askForCopies(int copies);
    void askForEntry(const QString &key, const QString &text);
    void layAsked();
    void nameJob();
    void tellFirstPage();
    void proposePaper();
    void sync(SyncDirection direction);

    const Wishes m_wishes;
    DevicePanels *m_panels;
    PresetStore m_presets;
    SecretKeys m_secretKeys;
    JobDescriber m_describer;
    RepeatedChoices m_repeatedChoices; // of this device
    // Tickets as they were described last: a window's parts ask one after the other.
    struct Described
    {
        Ticket printSettings, pageFormat;
        std::shared_ptr<PpdFile> ppd;
        JobDescription description;
        bool isKnown = false;
    };
    const JobDescription &describe(Described &known, const Ticket &printSettings,
                                   const Ticket &pageFormat);
    Described m_asItStands, m_asAsked;
    // Those that were found last: a look, a press of Print and its answer ask for the same.
    struct FoundConflicts
    {
        std::shared_ptr<PpdFile> ppd;
        PPDDictionary choices;
        QStringList lastSet;
        ConflictReport report;
    };
    FoundConflicts m_conflicts;

    QString m_title;
    Document m_document;             // null: not there yet
    bool m_hasProposedPaper = false; // on this device
    Device m_device;
    std::unique_ptr<PrintSession> m_session;
    Edits m_edits;
    bool m_areWishesAsked = false; // on this device or an earlier one
    bool m_isSettled = false;
};

// A value; nobody but SessionJob looks into it.
struct SessionJob::Snapshot
{
    Ticket printSettings, pageFormat;
    Edits edits;
};

} // namespace kelvo
