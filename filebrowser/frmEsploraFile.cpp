#include "filebrowser/frmEsploraFile.h"

#include "art/Disegni.h"
#include "base/Codifica.h"
#include "controls/Tasti.h"
#include "filebrowser/Foto.h"
#include "filebrowser/Nomi.h"
#include "filebrowser/PercorsoRobot.h"

using namespace Qt::StringLiterals;

namespace {

constexpr quint8 voceCartella = 2;
// The length of a path is sent as one byte.
constexpr qsizetype percorsoMassimo = 255;

// The look, in layout units. The smallest width is the one at which the photo leaves room for the
// names of the files.
constexpr double larghezzaIniziale = 11400;
constexpr double altezzaIniziale = 6600;
constexpr double larghezzaMinima = 9600;
constexpr double altezzaMinima = 4800;
constexpr double altezzaCarattere = 180;
constexpr double bordo = 195;
constexpr double cimaElenchi = 600;
constexpr double cimaTitoli = 270;
constexpr double altezzaTitolo = 300;
constexpr double latoDisegnoHome = 300;

void titolo(Etichetta &etichetta, double left, double width)
{
    etichetta.Move(left, cimaTitoli);
    etichetta.Size(width, altezzaTitolo);
    etichetta.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

// Checks a width or a height that the layout rule has computed. Throws Errore::ProprietaNonValida
// if the window is too small for it.
double misura(double unita)
{
    if (unita < 0)
        throw Errore(Errore::ProprietaNonValida);
    return unita;
}

QString testo(Prelievo::Attesa attesa)
{
    switch (attesa) {
    case Prelievo::Attesa::Elenco:
        return u"Elenco"_s;
    case Prelievo::Attesa::File:
        return u"File"_s;
    case Prelievo::Attesa::Niente:
        break;
    }
    return {};
}

// What a text written into the Tag means; any other text means that nothing is awaited.
Prelievo::Attesa attesaDi(const QString &testo)
{
    if (testo == u"Elenco")
        return Prelievo::Attesa::Elenco;
    if (testo == u"File")
        return Prelievo::Attesa::File;
    return Prelievo::Attesa::Niente;
}

} // namespace

frmEsploraFile::frmEsploraFile(ControlloSeriale &com, BarraDiStato &barraStato,
                               const QString &cartella)
    : Finestra(u"frmEsploraFile"_s, u"Esplora Risorse"_s),
      lstImgAttesa(Disegni::lstImgAttesa()),
      Label1(u"Label1"_s, this, u"Cartelle"_s),
      Label2(u"Label2"_s, this, u"File"_s),
      lstCartelle(u"lstCartelle"_s, this),
      lstFile(u"lstFile"_s, this),
      imgAttesa(u"imgAttesa"_s, this, &lstImgAttesa),
      pulHome(u"pulHome"_s, this, {}),
      lblNomeFoto(u"lblNomeFoto"_s, this),
      imgFoto(u"imgFoto"_s, this),
      prelievo(com, barraStato, cartella, *this),
      BarraStato(barraStato)
{
    legaTag();
    disponi();
    Disegno();
    pulHome.Click.collega(this, &frmEsploraFile::pulHome_Click);
    lstCartelle.DblClick.collega(this, &frmEsploraFile::lstCartelle_DblClick);
    lstFile.DblClick.collega(this, &frmEsploraFile::lstFile_DblClick);
    lstCartelle.KeyDown.collega(this, &frmEsploraFile::lstCartelle_KeyDown);
    lstFile.KeyDown.collega(this, &frmEsploraFile::lstFile_KeyDown);
}

void frmEsploraFile::legaTag()
{
    mostraTag([this] { return testo(prelievo.attesa()); },
              [this](const QString &tag) { prelievo.imposta(attesaDi(tag)); });
}

// Resize() places again what depends on the window's size. Qt's own functions take pixels.
void frmEsploraFile::disponi()
{
    QFont carattere = font();
    carattere.setPixelSize(Unita::pixel(altezzaCarattere));
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
    pulHome.setIconSize(QSize(1, 1) * Unita::pixel(latoDisegnoHome));
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
    setMinimumSize(Unita::pixel(larghezzaMinima), Unita::pixel(altezzaMinima));
    resize(Unita::pixel(larghezzaIniziale), Unita::pixel(altezzaIniziale));
}

// The layout rule, in layout units. A step that fails leaves its control as it was.
void frmEsploraFile::Resize()
{
    const double larghezza = Unita::unita(width());
    const double altezza = Unita::unita(height());
    passaErrori([&] { imgFoto.setLeft(larghezza - imgFoto.Width() - 200); });
    passaErrori([&] { lblNomeFoto.setLeft(imgFoto.Left()); });
    passaErrori([&] { lstCartelle.setHeight(misura(altezza - 800)); });
    passaErrori([&] { lstFile.setHeight(misura(altezza - 800)); });
    passaErrori([&] {
        const double margine = imgFoto.Visible() ? imgFoto.Width() + 400 : 300;
        lstFile.setWidth(misura(larghezza - (lstCartelle.Left() + lstCartelle.Width()) - margine));
    });
    passaErrori([&] { pulHome.setLeft(lstFile.Left() + lstFile.Width() - pulHome.Width()); });
    passaErrori([&] { imgAttesa.setLeft(pulHome.Left() - pulHome.Width()); });
}

void frmEsploraFile::Disegno()
{
    setTag({});
    setEnabled(true);
    lstCartelle.setTag({});
    svuotaElenchi();
    m_fotogramma = 0;
    imgAttesa.setVisible(false);
    imgAttesa.setPicture(0);
    imgFoto.setVisible(false);
    togliFoto();
    lblNomeFoto.setVisible(false);
    intitolaFoto({});
}

void frmEsploraFile::Activate()
{
    // A window that is disabled by a fetch starts no listing.
    if (isEnabled() && lstCartelle.ListCount() == 0)
        pulHome_Click();
}

void frmEsploraFile::Unload(bool &)
{
    prelievo.lascia();
}

void frmEsploraFile::pulHome_Click()
{
    if (!prelievo.comincia(Prelievo::Attesa::Elenco))
        return;
    ImmagineAttesa(true);
    if (!prelievo.apri({}))
        return;
    svuotaElenchi();
    lstCartelle.setTag({});
}

void frmEsploraFile::lstCartelle_DblClick()
{
    if (lstCartelle.ListIndex() == -1)
        return;
    const QString t = lstCartelle.Text();
    if (!prelievo.comincia(Prelievo::Attesa::Elenco) ||
        !prelievo.apri(Codifica::inByte(percorsoCartella(t))))
        return;
    lstCartelle.setTag(prefissoCartella(t));
    svuotaElenchi();
}

void frmEsploraFile::lstFile_DblClick()
{
    if (lstFile.ListIndex() == -1 || prelievo.inCorso())
        return;
    const QString nome = lstFile.Text();
    const QByteArray percorso = Codifica::inByte(lstCartelle.Tag() + nome);
    if (percorso.size() > percorsoMassimo) {
        // The robot would take the end of a longer path for commands.
        prelievo.segnalaErrore();
        return;
    }
    if (!prelievo.comincia(Prelievo::Attesa::File, nome))
        return;
    setEnabled(false);
    if (!prelievo.apri(percorso))
        return;
    imgFoto.setVisible(nomeDiFoto(nome));
    lblNomeFoto.setVisible(nomeDiFoto(nome));
    Resize();
    BarraStato.setPanels(3, u"Attendere..."_s);
    ImmagineAttesa(true);
}

void frmEsploraFile::lstCartelle_KeyDown(int &KeyCode, int)
{
    if (KeyCode == Tasti::Invio) {
        KeyCode = 0;
        lstCartelle_DblClick();
    }
}

void frmEsploraFile::lstFile_KeyDown(int &KeyCode, int)
{
    if (KeyCode == Tasti::Invio) {
        KeyCode = 0;
        lstFile_DblClick();
    }
}

void frmEsploraFile::svuotaElenchi()
{
    lstCartelle.Clear();
    lstFile.Clear();
}

void frmEsploraFile::assestaElenchi()
{
    lstCartelle.assesta();
    lstFile.assesta();
}

void frmEsploraFile::aggiungi(quint8 x, const QString &nome)
{
    (x == voceCartella ? lstCartelle : lstFile).AddItem(nome);
}

void frmEsploraFile::ImmagineAttesa(bool attiva)
{
    if (attiva) {
        m_fotogramma = static_cast<quint8>(m_fotogramma % lstImgAttesa.ListCount() + 1);
        imgAttesa.setPicture(m_fotogramma);
    }
    imgAttesa.setVisible(attiva);
}

void frmEsploraFile::caricaFoto(const QString &percorso)
{
    imgFoto.setDisegno(ingrandita(leggiFoto(percorso), imgFoto.size()));
}

void frmEsploraFile::intitolaFoto(const QString &nome)
{
    lblNomeFoto.setCaption(nome);
    // The label cuts a long name at the edge of the photo.
    lblNomeFoto.setToolTip(suggerimento(nome));
}

void frmEsploraFile::riabilita()
{
    setEnabled(true);
    // Disabling the window has taken the focus from the list.
    if (isVisible())
        lstFile.setFocus(Qt::OtherFocusReason);
}
