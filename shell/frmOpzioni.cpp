#include "shell/frmOpzioni.h"

#include "base/Archivio.h"
#include "base/Codifica.h"
#include "base/Numeri.h"
#include "shell/FileProgDat.h"
#include "shell/Gest_File.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmOpzioni::frmOpzioni()
    : Finestra(u"frmOpzioni"_s, u"Opzioni"_s),
      opzCollegaAut(u"opzCollegaAut"_s, this, u"Collega automaticamente ad Tessaro all'avvio"_s),
      Frame1(u"Frame1"_s, this, u"Porta COM"_s),
      lblSpiegazioneCOM(u"lblSpiegazioneCOM"_s, &Frame1,
                        u"Il numero di porta utilizzato per connettersi"_s),
      lblAttenzionePorta(u"lblAttenzionePorta"_s, &Frame1,
                         u"Attenzione: non è stato impostato il numero di porta COM. Senza di esso "
                         "non è possibile collegarsi al ROBOT!"_s),
      txtPorta(u"txtPorta"_s, &Frame1),
      SuGiu(u"SuGiu"_s, &Frame1, NumeroPorta::Minimo, NumeroPorta::Massimo, NumeroPorta::Minimo),
      pulOK(u"pulOK"_s, this, u"OK"_s),
      pulAnnulla(u"pulAnnulla"_s, this, u"Annulla"_s),
      m_numeroPorta(*this, txtPorta, SuGiu)
{
    disponi();
    Disegno();
    m_numeroPorta.conOK(pulOK);
    pulOK.Click.collega(this, &frmOpzioni::pulOK_Click);
    pulAnnulla.MouseDown.collega(this, &frmOpzioni::pulAnnulla_MouseDown);
    pulAnnulla.Click.collega(this, &frmOpzioni::pulAnnulla_Click);
}

void frmOpzioni::disponi()
{
    txtPorta.setAccessibleName(u"Numero della porta COM"_s);
    txtPorta.setFixedWidth(48);
    txtPorta.setAlignment(Qt::AlignRight);
    lblAttenzionePorta.setWordWrap(true);
    lblSpiegazioneCOM.setWordWrap(true);
    lblAttenzionePorta.setForeColor(QColor(0xB0, 0x1C, 0x1C));
    setDialogo();
    setPredefinito(&pulOK);
    setAnnulla(&pulAnnulla);

    auto *porta = new QGridLayout(&Frame1);
    constexpr int bordo = 12;
    porta->setContentsMargins(bordo, Frame1.titolo().bottom() + bordo, bordo, bordo);
    porta->setHorizontalSpacing(0);
    porta->addWidget(&txtPorta, 0, 0);
    porta->addWidget(&SuGiu, 0, 1);
    porta->setColumnMinimumWidth(2, 12);
    porta->addWidget(&lblSpiegazioneCOM, 0, 3);
    porta->addWidget(&lblAttenzionePorta, 0, 3);
    porta->setColumnStretch(3, 1);
    SuGiu.setFixedHeight(txtPorta.sizeHint().height());

    auto *pulsanti = new QHBoxLayout;
    pulsanti->addStretch();
    pulsanti->addWidget(&pulOK);
    pulsanti->addWidget(&pulAnnulla);

    auto *colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(14, 14, 14, 14);
    colonna->setSpacing(12);
    colonna->addWidget(&opzCollegaAut);
    colonna->addWidget(&Frame1);
    colonna->addStretch();
    colonna->addLayout(pulsanti);
    resize(420, 210);
}

void frmOpzioni::Disegno()
{
    setTag({});
    // Ticked, because without a file the program connects.
    opzCollegaAut.setValue(1);
    txtPorta.setText(u"1"_s);
    SuGiu.setValue(1);
    lblSpiegazioneCOM.show();
    lblAttenzionePorta.hide();
}

void frmOpzioni::Activate()
{
    leggiFile();
    m_numeroPorta.inizia();
}

void frmOpzioni::leggiFile()
{
    QByteArray testo;
    try {
        Archivio::apri(1, u"Porta COM"_s, Archivio::Modo::Lettura);
        testo = Archivio::leggiCampo(1);
        txtPorta.setText(Codifica::daByte(testo));
        Archivio::chiudi();
        SuGiu.setValue(Numeri::Intero(txtPorta.Text()));
    } catch (const Errore &) {
        Archivio::abbandona();
        if (!testo.isEmpty())
            return;
        lblAttenzionePorta.show();
        lblSpiegazioneCOM.hide();
    }
    passaErrori([&] {
        Archivio::apri(1, FileProgDat::nome(), Archivio::Modo::Lettura);
        opzCollegaAut.setValue(Numeri::Byte(Archivio::leggiNumero(1)));
    });
    Archivio::abbandona();
}

void frmOpzioni::pulOK_Click()
{
    // Conferma::GiaDetto goes on: the settings are stored although the box is empty.
    if (m_numeroPorta.conferma() == NumeroPorta::Conferma::Vuoto)
        return;
    passaErrori([&] { ScriviFile(u"Porta COM"_s, Codifica::inByte(txtPorta.Text()) + "\r\n"); });
    QByteArray testo;
    passaErrori([&] { testo = FileProgDat::leggi(); });
    passaErrori([&] {
        FileProgDat::scrivi(QByteArray::number(opzCollegaAut.Value()),
                            FileProgDat::condizione(testo));
    });
    Scarica();
}

void frmOpzioni::pulAnnulla_MouseDown(int Button, int, double, double)
{
    // If the box is empty, the press took the focus from it and showed the message. If the mouse
    // button was released over the message, no Click follows, although the user has clicked.
    if (Button == 1 && !(QGuiApplication::mouseButtons() & Qt::LeftButton))
        pulAnnulla_Click();
}

void frmOpzioni::pulAnnulla_Click()
{
    Scarica();
}
