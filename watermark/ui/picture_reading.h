#pragma once

#include "newest_task.h"
#include "picture_import.h"
#include "watermark_editing.h"

#include <QObject>
#include <QString>

namespace kelvo {

// The picture of a preview, read on a thread of its own.
class PictureReading : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Begins to read that file; the one that is there, or is being read, is not read again.
    // Empty: none.
    void read(const QString &path);
    // The next read() reads it again, where the file may have changed.
    void forget() { m_isForgotten = true; }

    const QString &path() const { return m_path; } // of picture(), or of what is being read
    PictureState state() const { return m_state; }
    const ImportedPicture &picture() const { return m_picture; } // null unless it is Read
    const Error &problem() const { return m_problem; }           // when it is Unreadable
    bool isBusy() const { return m_reading.isBusy(); }

signals:
    void changed(); // the state

private:
    void setState(PictureState state);

    QString m_path;
    bool m_isForgotten = false;
    ImportedPicture m_picture;
    PictureState m_state = PictureState::None;
    Error m_problem{Error::Code::NotFound, {}, {}};
    NewestTask m_reading; // last: it ends first
};

} // namespace kelvo
