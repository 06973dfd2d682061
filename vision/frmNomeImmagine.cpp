#include "vision/frmNomeImmagine.h"

#include "base/Codifica.h"
#include "controls/Messaggi.h"
#include "shell/Gest_File.h"
#include "shell/Se_Casi.h"
#include "vision/ArchivioImmagini.h"
#include "vision/Colore.h"
#include "vision/Fotogramma.h"
#include "vision/NomeDoppio.h"
#include "vision/RecordImmagine.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QWindow>

using namespace Qt::StringLiterals;

frmNomeImmagine::frmNomeImmagine(frmImmaginiAcquisite &immagini)
    : Finestra(u"frmNomeImmagine"_s, u"Dai un nome all'immagine"_s),
      areaImmagine(u"areaImmagine"_s, this, Superficie::Scala::Pixel),
      imgAcquisita(u"imgAcquisita"_s, &areaImmagine, Superficie::Scala::Pixel),
      lblAttesa(u"lblAttesa"_s, this, u"un attimo solo"_s),
      lblNome(u"lblNome"_s, this, u"Nome:"_s),
      txtNomeImmagine(u"txtNomeImmagine"_s, this),
      pulOK(u"pulOK"_s, this, u"OK"_s),
      pulAnnulla(u"pulAnnulla"_s, this, u"Annulla"_s),
      tmrAcquisizione(u"tmrAcquisizione"_s, this),
      m_immagini(immagini)
{
    tmrAcquisizione.setInterval(1);
    setWindowFlag(Qt::Dialog);
    disponi();
    Disegno();
    txtNomeImmagine.KeyPress.collega(this, &frmNomeImmagine::txtNomeImmagine_KeyPress);
    pulOK.Click.collega(this, &frmNomeImmagine::pulOK_Click);
    pulAnnulla.Click.collega(this, &frmNomeImmagine::pulAnnulla_Click);
    tmrAcquisizione.Timer.collega(this, &frmNomeImmagine::tmrAcquisizione_Timer);
}

void frmNomeImmagine::disponi()
{
    // imgAcquisita has one more column and row than a frame, because its pixels count from 1.
    // nomina() moves it to 39 - width / 2 and 29 - height / 2; the copied area is then in the
    // middle.
    areaImmagine.setFixedSize(Fotogramma::Colonne, Fotogramma::Righe);
    imgAcquisita.resize(Fotogramma::Colonne + 1, Fotogramma::Righe + 1);
    imgAcquisita.setAttribute(Qt::WA_TransparentForMouseEvents);
    txtNomeImmagine.setAccessibleName(u"Nome dell'immagine"_s);
    txtNomeImmagine.setMinimumWidth(220);
    lblNome.setBuddy(&txtNomeImmagine);
    QFont corsivo = lblAttesa.font();
    corsivo.setItalic(true);
    lblAttesa.setFont(corsivo);
    setDialogo();
    setPredefinito(&pulOK);
    setAnnulla(&pulAnnulla);

    auto *cornice = new QFrame(this);
    cornice->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    cornice->setBackgroundRole(QPalette::Base);
    cornice->setAutoFillBackground(true);
    auto *dentro = new QHBoxLayout(cornice);
    dentro->setContentsMargins(6, 6, 6, 6);
    dentro->addWidget(&areaImmagine);

    auto *pulsanti = new QHBoxLayout;
    pulsanti->addWidget(&lblAttesa);
    pulsanti->addStretch();
    pulsanti->addWidget(&pulOK);
    pulsanti->addWidget(&pulAnnulla);

    auto *nome = new QVBoxLayout;
    nome->setSpacing(4);
    nome->addStretch();
    nome->addWidget(&lblNome);
    nome->addWidget(&txtNomeImmagine);
    nome->addStretch();

    auto *griglia = new QGridLayout(this);
    griglia->setContentsMargins(14, 14, 14, 14);
    griglia->setSpacing(12);
    griglia->addWidget(cornice, 0, 0, Qt::AlignTop);
    griglia->addLayout(nome, 0, 1);
    griglia->addLayout(pulsanti, 1, 0, 1, 2);
    griglia->setColumnStretch(1, 1);
    resize(380, 150);
}

void frmNomeImmagine::Disegno()
{
    setTag({});
    txtNomeImmagine.setText({});
    pulOK.setEnabled(false);
    imgAcquisita.Pulisci();
    imgAcquisita.show();
    lblAttesa.show();
    tmrAcquisizione.setEnabled(false);
}

void frmNomeImmagine::nomina(const Matrice &pixel, const Area &area, QWidget &padrona)
{
    imgAcquisita.movePixel(39 - area.width / 2, 29 - area.height / 2);
    setTag(QString::number(area.width) + u',' + QString::number(area.height));
    imgAcquisita.hide();
    m_acquisizione.inizia(pixel, area.left, area.top, area.width, area.height);
    AcquisisciImmagine();
    winId();
    windowHandle()->setTransientParent(padrona.window()->windowHandle());
    Mostra();
    // Also if the copy is already complete: the first tick then disables the timer.
    tmrAcquisizione.setEnabled(true);
}

void frmNomeImmagine::AcquisisciImmagine()
{
    QString record = Tag();
    const bool finita = m_acquisizione.prosegui([&](int colonna, int riga, qint32 colore) {
        imgAcquisita.Riempi({colonna, riga, 1, 1}, QColor(rgb(colore)));
        record += u',' + QString::number(colore);
    });
    setTag(record);
    if (!finita)
        return;
    tmrAcquisizione.setEnabled(false);
    pulOK.setEnabled(true);
    imgAcquisita.show();
    lblAttesa.hide();
}

void frmNomeImmagine::Activate()
{
    passaErrori([this] { txtNomeImmagine.SetFocus(); });
}

void frmNomeImmagine::txtNomeImmagine_KeyPress(int &KeyAscii)
{
    if (KeyAscii >= 'a' && KeyAscii <= 'z' && txtNomeImmagine.Text().isEmpty())
        KeyAscii -= 32;
    if (ContieneValore(KeyAscii, '/', '\\', ':', '*', '?', '"', '<', '>', '|'))
        KeyAscii = 0;
}

void frmNomeImmagine::pulOK_Click()
{
    if (txtNomeImmagine.Text().isEmpty())
        return;
    const QByteArray nome = inUnaRiga(Codifica::inByte(txtNomeImmagine.Text()));
    QByteArray s;
    bool leggibile = true;
    try {
        s = LeggiFile(fileImmagini(), 0);
    } catch (const Errore &errore) {
        // If the file exists but cannot be read now, it must not be overwritten.
        leggibile = errore.numero() == Errore::FileNonTrovato;
    }
    if (!s.isEmpty() && nomeDoppio(s, nome)) {
        messaggio(u"Il nome esiste già!"_s);
        return;
    }
    if (leggibile) {
        const QByteArray testo = aggiungiRecord(s, nome, Codifica::inByte(Tag()));
        passaErrori([&] { ScriviFile(fileImmagini(), testo); });
    }
    if (m_immagini.Visible())
        m_immagini.Aggiorna();
    Scarica();
}

void frmNomeImmagine::pulAnnulla_Click()
{
    Scarica();
}

void frmNomeImmagine::tmrAcquisizione_Timer()
{
    AcquisisciImmagine();
}
