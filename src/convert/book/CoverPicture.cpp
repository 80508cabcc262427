#include "convert/book/CoverPicture.h"

#include "convert/book/BookCover.h"
#include "platform/Errors.h"
#include "platform/Guarded.h"

#include <QPushButton>

CoverPicture::CoverPicture(QWidget *parent) : QLabel(parent)
{
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::StyledPanel);
    setBackgroundRole(QPalette::Base);
    setForegroundRole(QPalette::Text);
    setAutoFillBackground(true);
    setWordWrap(true);
    setCover({});
}

void CoverPicture::connectButtons(Prompts &prompts, const QPushButton &choose, QPushButton &remove)
{
    connectGuarded(&choose, &QPushButton::clicked, this, prompts,
                   [this, &prompts] { this->choose(prompts); });
    connect(&remove, &QPushButton::clicked, this, [this] { setCover({}); });
    const auto showState = [this, &remove] { remove.setEnabled(!m_cover.isEmpty()); };
    connect(this, &CoverPicture::coverChanged, &remove, showState);
    showState();
}

void CoverPicture::setCover(const QByteArray &cover)
{
    m_cover = cover;
    const QSize room = contentsRect().size().expandedTo(sizeHint()) * devicePixelRatioF();
    QImage image = coverImage(cover, room);
    image.setDevicePixelRatio(devicePixelRatioF());
    if (image.isNull())
        setText(tr("Aucune image"));
    else
        setPixmap(QPixmap::fromImage(image));
    Q_EMIT coverChanged();
}

QSize CoverPicture::sizeHint() const
{
    return {120, 160};
}

void CoverPicture::choose(Prompts &prompts)
{
    const QString path =
        prompts.openName(tr("Choisir une Image"), tr("Images PNG et JPEG (*.png *.jpg *.jpeg)|"
                                                     "*.png;*.jpg;*.jpeg"));
    if (path.isEmpty())
        return;
    const auto refuse = [&](const QString &text) {
        prompts.message(text, tr("Zut"), Prompts::Buttons::Ok);
    };
    try {
        setCover(readCover(path));
    } catch (const FormatError &error) {
        refuse(error.position() == 0 ? tr("Ce fichier n'est pas une image PNG ou JPEG.")
                                     : tr("Cette image est abîmée ou incomplète."));
    } catch (const LimitError &) {
        refuse(tr("Cette image est trop grande : une couverture a 8 Mo et %1 points de côté au "
                  "plus.")
                   .arg(WidestCover));
    }
}
