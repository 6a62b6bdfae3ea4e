#include "picture_reading.h"

#include "texts.h"

namespace kelvo {

void PictureReading::read(const QString &path)
{
    if (path == m_path && !m_isForgotten)
        return;
    m_path = path;
    m_isForgotten = false;
    m_picture = {};
    m_reading.drop();
    if (path.isEmpty()) {
        setState(PictureState::None);
        return;
    }
    const bool isStarted = m_reading.start([this, path](const std::atomic_bool &isUnwanted) {
        return [this, read = importPicture(path, &isUnwanted)] {
            if (read)
                m_picture = read.value();
            else
                m_problem = read.error();
            setState(read ? PictureState::Read : PictureState::Unreadable);
        };
    });
    if (!isStarted) {
        m_problem = {Error::Code::NotReadable, path,
                     translate("Watermark",
                               "the system has no thread to read it on; close programs and "
                               "choose it again")};
    }
    setState(isStarted ? PictureState::Reading : PictureState::Unreadable);
}

void PictureReading::setState(PictureState state)
{
    m_state = state;
    emit changed();
}

} // namespace kelvo
