#include "filebrowser/Foto.h"

#include "base/Errore.h"

#include <QImageReader>

using namespace Qt::StringLiterals;

namespace {

// The longest side of a photo, in pixels. A small file can claim a picture of gigabytes in its
// header.
constexpr int latoMassimo = 4096;

// The most screen pixels for each logical pixel: the photo is then sharp on every screen to which
// the window is moved.
constexpr int finezza = 4;

} // namespace

bool nomeDiFoto(const QString &nome)
{
    return nome.endsWith(u".jpg"_s);
}

QPixmap leggiFoto(const QString &percorso)
{
    // Photos are JPEG files. No other decoder reads what the robot sends, whatever the file
    // contains.
    QImageReader lettore(percorso, "jpeg");
    lettore.setAutoDetectImageFormat(false);
    lettore.setAutoTransform(true);
    const QSize misura = lettore.size();
    if (misura.isEmpty() || misura.width() > latoMassimo || misura.height() > latoMassimo)
        throw Errore(Errore::ImmagineNonValida);
    const QImage foto = lettore.read();
    if (foto.isNull())
        throw Errore(Errore::ImmagineNonValida);
    return QPixmap::fromImage(foto);
}

QPixmap ingrandita(const QPixmap &foto, QSize posto)
{
    const QSize pieno = foto.size().scaled(posto * finezza, Qt::KeepAspectRatio);
    if (foto.width() >= pieno.width())
        return foto;
    return foto.scaled(pieno.expandedTo(QSize(1, 1)), Qt::IgnoreAspectRatio,
                       Qt::SmoothTransformation);
}
