#include "shell/frmSchermataIniziale.h"

#include "art/Disegni.h"
#include "base/Numeri.h"
#include "shell/Versione.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmSchermataIniziale::frmSchermataIniziale()
    : Finestra(u"frmSchermataIniziale"_s, u"Lumbra"_s),
      lstImg(Disegni::attesaIniziale()),
      Frame1(u"Frame1"_s, this),
      imgLogo(u"imgLogo"_s, this, Disegni::icona(u"logo")),
      lblProductName(u"lblProductName"_s, this, u"Lumbra"_s),
      Label1(u"Label1"_s, this, u"Programma per il controllo remoto di Tessaro"_s),
      lblCompanyProduct(u"lblCompanyProduct"_s, this, u"Per il robot Tessaro"_s),
      lblVersion(u"lblVersion"_s, this),
      lblColl(u"lblColl"_s, this),
      imgAttesa(u"imgAttesa"_s, this, &lstImg),
      pulNonCollegare(u"pulNonCollegare"_s, this, u"Non collegare"_s),
      tmrAnimazione(u"tmrAnimazione"_s, this)
{
    pulNonCollegare.setTag(u"0"_s);
    disponi();
    Disegno();
    pulNonCollegare.Click.collega(this, &frmSchermataIniziale::pulNonCollegare_Click);
    tmrAnimazione.Timer.collega(this, &frmSchermataIniziale::tmrAnimazione_Timer);
}

void frmSchermataIniziale::disponi()
{
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    setFixedSize(560, 300);
    // Message boxes at the start are placed over this window, so its position must be known before
    // the window system reports it.
    move(screen()->availableGeometry().center() - rect().center());
    Frame1.setGeometry(rect());
    Frame1.setColori(palette().color(QPalette::Base), QColor(0x1F, 0x5F, 0x8B), 0, 2);
    const auto grande = [](QLabel &etichetta, double punti, bool grassetto) {
        QFont font = etichetta.font();
        font.setPointSizeF(punti);
        font.setBold(grassetto);
        etichetta.setFont(font);
    };
    grande(lblProductName, 30, true);
    grande(Label1, 11, false);
    imgLogo.setFixedSize(128, 128);
    imgAttesa.setFixedSize(48, 48);
    Label1.setWordWrap(true);
    lblColl.setMinimumHeight(20);

    auto *testi = new QVBoxLayout;
    testi->addStretch();
    testi->addWidget(&lblProductName);
    testi->addWidget(&Label1);
    testi->addSpacing(8);
    testi->addWidget(&lblCompanyProduct);
    testi->addWidget(&lblVersion);
    testi->addStretch();
    auto *alto = new QHBoxLayout;
    alto->setSpacing(24);
    alto->addWidget(&imgLogo);
    alto->addLayout(testi, 1);
    auto *basso = new QHBoxLayout;
    basso->setSpacing(12);
    basso->addWidget(&imgAttesa);
    basso->addWidget(&lblColl, 1);
    basso->addWidget(&pulNonCollegare);
    auto *colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(28, 24, 28, 20);
    colonna->addLayout(alto, 1);
    colonna->addLayout(basso);
}

void frmSchermataIniziale::Disegno()
{
    lblColl.setCaption(u"Apertura del programma..."_s);
    imgAttesa.setPicture(0);
    tmrAnimazione.setInterval(200);
    tmrAnimazione.setEnabled(false);
    m_fotogramma = 0;
}

void frmSchermataIniziale::Load()
{
    lblVersion.setCaption(
        u"Versione %1.%2.%3"_s.arg(Versione::Major).arg(Versione::Minor).arg(Versione::Revision));
}

void frmSchermataIniziale::QueryUnload(bool &Cancel, Chiusura UnloadMode)
{
    Cancel = UnloadMode == Chiusura::Utente;
}

void frmSchermataIniziale::pulNonCollegare_Click()
{
    pulNonCollegare.setTag(Numeri::TestoLogico(true));
}

void frmSchermataIniziale::tmrAnimazione_Timer()
{
    m_fotogramma = m_fotogramma == 6 ? 1 : static_cast<quint8>(m_fotogramma + 1);
    imgAttesa.setPicture(m_fotogramma);
}
