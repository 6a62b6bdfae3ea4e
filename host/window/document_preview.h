#pragma once

#include "document.h"
#include "job_settings.h"
#include "page_renderer.h"
#include "printed_pages.h"
#include "sheet_sequence.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace kelvo {

// Shows the sheets that will be printed, one side at a time: white paper in
// any theme, page forward and back, "Sheet 2, front". Covers and inserts are sheets
// with their name on them; pages of an exception range have a corner marked. Sheets of a
// booklet have two pages on a side and a line where they are folded. The caller says what is
// printed; nothing here decides it. What the device sends before the document has the first
// place, under its own name.
class DocumentPreview : public QWidget
{
    Q_OBJECT

public:
    explicit DocumentPreview(QWidget *parent = nullptr);
    ~DocumentPreview() override;

    struct Layout
    {
        PrintedPages pages; // of this document; none: all, as they are
        QSizeF paper;       // points; empty: each page's own size
        Orientation orientation = Orientation::Portrait;
        bool twoSided = false;
        SpecialSheets special;
        SpecialSheetWords words; // what they are called
        std::optional<Imposition> imposition;
        std::vector<Overlay> overlays;
        std::optional<LeadingPage> leadingPage;
    };
    void setDocument(const Document &document);
    void setLayout(const Layout &layout);
    void setOverlayPainter(OverlayPainter painter);         // of sides drawn from now on
    void setLeadingPagePainter(LeadingPagePainter painter); // likewise
    int pageInSight() const;                                // of the document, from 1; 0: none
    void setMessage(const QString &message); // instead of a page; empty shows pages again

    // Where people do not see it (audience.h) a side is put off until this asks for it.
    void drawPutOff();
    bool isDrawing() const; // a side is not in sight yet, put off or not
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace kelvo
