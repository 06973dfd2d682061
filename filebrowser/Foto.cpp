#include "filebrowser/Foto.h"

#include "base/Errore.h"

#include <QImageReader>

using namespace Qt::StringLiterals;

namespace {

// A file of one block is small, but a few bytes of it can claim a picture of gigabytes.
constexpr int latoMassimo = 4096;

// Pixels to a logical one, at most: the same photo is right on each screen that it is moved to.
constexpr int finezza = 4;

} // namespace

bool nomeDiFoto(const QString &nome)
{
    return nome.endsWith(u".jpg"_s);
}

QPixmap leggiFoto(const QString &percorso)
{
    // The one format that a photo has: whatever else the robot calls so is not even looked at.
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
