// The look of the window. Places and sizes of controls are in layout units; the layout rule in
// Resize() changes some of them.
#include "art/Disegni.h"
#include "filebrowser/Nomi.h"
#include "filebrowser/frmEsploraFile.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int larghezza = 760;
constexpr int altezza = 440;
// In a narrower window the photo leaves no room for the names of the files.
constexpr int larghezzaMinima = 640;
constexpr int altezzaMinima = 320;

constexpr double bordo = 195;
constexpr double cimaElenchi = 600;
constexpr double cimaTitoli = 270;
constexpr double altezzaTitolo = 300;

void titolo(Etichetta &etichetta, double left, double width)
{
    etichetta.Move(left, cimaTitoli);
    etichetta.Size(width, altezzaTitolo);
    etichetta.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

} // namespace

void frmEsploraFile::disponi()
{
    QFont carattere = font();
    carattere.setPixelSize(12);
    setFont(carattere);

    lstCartelle.Move(bordo, cimaElenchi);
    lstCartelle.Size(2550, 5800);
    lstFile.Move(lstCartelle.Left() + lstCartelle.Width() + 105, cimaElenchi);
    lstFile.Size(8000, 5800);
    lstCartelle.setItemDelegate(new RigheDiNomi(Disegni::icona(u"cartella"), &lstCartelle));
    lstFile.setItemDelegate(new RigheDiNomi(Disegni::icona(u"documento"), &lstFile));
    titolo(Label1, lstCartelle.Left(), lstCartelle.Width());
    titolo(Label2, lstFile.Left(), 600);
    for (ElencoCrescente *lista : {&lstCartelle, &lstFile})
        lista->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstCartelle.setAccessibleName(Label1.Caption());
    lstFile.setAccessibleName(Label2.Caption());

    pulHome.Move(0, 75);
    pulHome.Size(480, 450);
    pulHome.setIcon(Disegni::icona(u"casa"));
    pulHome.setIconSize(QSize(20, 20));
    pulHome.setToolTip(u"Torna all'inizio"_s);
    pulHome.setAccessibleName(pulHome.toolTip());
    imgAttesa.Move(0, 75);
    imgAttesa.Size(450, 450);

    imgFoto.Move(0, cimaElenchi);
    imgFoto.Size(4800, 3600);
    imgFoto.setBorderStyle(1);
    titolo(lblNomeFoto, 0, imgFoto.Width());

    setTabOrder(&lstCartelle, &lstFile);
    setTabOrder(&lstFile, &pulHome);
    lstCartelle.setFocus();
    setMinimumSize(larghezzaMinima, altezzaMinima);
    resize(larghezza, altezza);
}
