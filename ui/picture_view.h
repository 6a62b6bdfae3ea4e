#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>

namespace kelvo {

class ControlInterface;

// Shows one picture, or several on top of one another, as large as fits
// without distortion. It is sharp at any device pixel ratio, and paler when
// disabled.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    explicit PictureView(QWidget *parent = nullptr);

    // As drawnPictures() (pictures.h) draws them; none draws nothing. `description` is what a
    // screen reader says.
    void setPictures(const QStringList &files, const QString &description = {});
    const QStringList &pictures() const { return m_files; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QStringList m_files;
};

std::unique_ptr<ControlInterface> interfaceOf(PictureView *view);

} // namespace kelvo
