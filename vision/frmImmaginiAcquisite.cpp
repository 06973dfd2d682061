#include "vision/frmImmaginiAcquisite.h"

#include "base/Numeri.h"
#include "vision/ArchivioImmagini.h"
#include "vision/Fotogramma.h"
#include "vision/Mosaico.h"
#include "vision/RecordImmagine.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels for each pixel of the picture.
constexpr int lato = 2;
// Room for the largest picture, which begins one square away from the corner, and for the same
// margin on the right and at the bottom.
constexpr int larghezzaArea = (Fotogramma::Colonne + 2) * lato;
constexpr int altezzaArea = (Fotogramma::Righe + 2) * lato;

} // namespace

frmImmaginiAcquisite::frmImmaginiAcquisite(Elenco &lista)
    : Finestra(u"frmImmaginiAcquisite"_s, u"Immagini acquisite"_s),
      lstImgAcquisite(u"lstImgAcquisite"_s, this, Elenco::Stile::ConSpunte),
      imgSelezionata(u"imgSelezionata"_s, this, Superficie::Scala::Pixel),
      lstImgCamera(lista)
{
    disponi();
    Disegno();
    lstImgAcquisite.Click.collega(this, &frmImmaginiAcquisite::lstImgAcquisite_Click);
}

void frmImmaginiAcquisite::disponi()
{
    lstImgAcquisite.setAccessibleName(windowTitle());
    lstImgAcquisite.setMinimumWidth(180);
    // Keeps the check marks of neighbouring rows apart.
    lstImgAcquisite.setSpacing(1);
    imgSelezionata.setFixedSize(larghezzaArea, altezzaArea);
    imgSelezionata.setAccessibleName(u"Immagine selezionata"_s);

    auto *cornice = new QFrame(this);
    cornice->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    cornice->setBackgroundRole(QPalette::Base);
    cornice->setAutoFillBackground(true);
    auto *dentro = new QHBoxLayout(cornice);
    dentro->setContentsMargins(4, 4, 4, 4);
    dentro->addWidget(&imgSelezionata);

    auto *griglia = new QGridLayout(this);
    griglia->setContentsMargins(14, 14, 14, 14);
    griglia->setSpacing(12);
    griglia->addWidget(&lstImgAcquisite, 0, 0);
    griglia->addWidget(cornice, 0, 1, Qt::AlignTop);
    griglia->setColumnStretch(0, 1);
    resize(420, 260);
}

void frmImmaginiAcquisite::Disegno()
{
    lstImgAcquisite.Clear();
    imgSelezionata.Pulisci();
}

void frmImmaginiAcquisite::Load()
{
    Aggiorna();
}

void frmImmaginiAcquisite::Aggiorna()
{
    lstImgAcquisite.Clear();
    for (int i = 0; i < lstImgCamera.ListCount(); ++i)
        lstImgAcquisite.AddItem(nomeImmagine(lstImgCamera.List(i)));
}

void frmImmaginiAcquisite::lstImgAcquisite_Click()
{
    const int indice = lstImgAcquisite.ListIndex();
    imgSelezionata.Pulisci();
    const Misure misure = misureImmagine(lstImgCamera.List(indice));
    const quint8 W = Numeri::Byte(std::trunc(misure.W));
    const quint8 H = Numeri::Byte(std::trunc(misure.H));
    Matrice Modello(Fotogramma::Colonne, Fotogramma::Righe);
    leggiModello(leggiRecord(indice), W, H, Modello);
    imgSelezionata.Dipingi({lato, lato}, mosaico(Modello, W, H, lato));
    lstImgCamera.setItemData(indice, lstImgAcquisite.Selected(indice) ? -1 : 0);
}
