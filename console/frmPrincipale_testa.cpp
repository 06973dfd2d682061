// Head LEDs, position LED, tools, gripper, photo.
#include "console/Attrezzi.h"
#include "console/LedTesta.h"
#include "console/frmPrincipale.h"
#include "shell/Abilita_Disabilita.h"

using Attrezzi::Lato;

namespace {

// The left button means on, any other means off.
bool acceso(int Button)
{
    return Button == 1;
}

} // namespace

void frmPrincipale::collegaTesta()
{
    ImgTesta.MouseMove.collega(this, &frmPrincipale::ImgTesta_MouseMove);
    ImgTesta.MouseDown.collega(this, &frmPrincipale::ImgTesta_MouseDown);
    for (int i = imgfr.prima(); i <= imgfr.ultima(); ++i)
        imgfr(i).MouseDown.collega(this, &frmPrincipale::ImgTesta_MouseDown);
    tmrAnimazFrecce.Timer.collega(this, &frmPrincipale::tmrAnimazFrecce_Timer);
    mnuComparsaOn.MouseMove.collega(
        [this](int, int, double, double Y) { mnuComparsa_MouseMove(mnuComparsaOn, true, Y); });
    mnuComparsaOff.MouseMove.collega(
        [this](int, int, double, double Y) { mnuComparsa_MouseMove(mnuComparsaOff, false, Y); });
    mnuComparsaOn.Click.collega([this] { mnuComparsa_Click(mnuComparsaOn, true); });
    mnuComparsaOff.Click.collega([this] { mnuComparsa_Click(mnuComparsaOff, false); });

    lblAccLED.Click.collega([this] { mandaOInserisci(LedTesta::tutti(true)); });
    lblSpLED.Click.collega([this] { mandaOInserisci(LedTesta::tutti(false)); });

    imgLEDPos.MouseDown.collega([this](int Button, int, double, double) {
        mandaOInserisci(Attrezzi::ledPosizione(acceso(Button)));
    });
    imgLEDPos.MouseMove.collega([this](int, int, double, double) { MouseMove(); });
    const auto tool = [this](Immagine &immagine, Lato lato) {
        immagine.MouseDown.collega([this, lato](int Button, int, double, double) {
            mandaOInserisci(Attrezzi::tool(lato, acceso(Button)));
        });
        immagine.MouseMove.collega([this, lato](int, int, double, double) {
            BarraStato.setPanels(3, Attrezzi::nomeTool(lato));
        });
    };
    tool(imgToolDx, Lato::Destro);
    tool(imgToolSx, Lato::Sinistro);
    imgPinzaAperta.Click.collega([this] { mandaOInserisci(Attrezzi::pinza(true)); });
    imgPinzaChiusa.Click.collega([this] { mandaOInserisci(Attrezzi::pinza(false)); });
    lblScattaFoto.Click.collega([this] { mandaOInserisci(Attrezzi::foto()); });
}

void frmPrincipale::ImgTesta_MouseMove(int, int, double X, double Y)
{
    if (Y <= Shape3.Top() + Shape3.Height()) {
        ImgTesta.setTag({});
        return;
    }
    ImgTesta.setTag(LedTesta::lato(X, ImgTesta.Width()));
    ImpostaVisibili(true, imgfr(0), imgfr(1), imgfr(2), imgfr(3));
    if (!tmrAnimazFrecce.Enabled())
        tmrAnimazFrecce.setEnabled(true);
}

void frmPrincipale::ImgTesta_MouseDown(int Button, int, double X, double)
{
    if (mnuComparsaOn.Visible() || mnuComparsaOff.Visible()) {
        mostraComparsa(mnuComparsaOn.Visible() ? mnuComparsaOn : mnuComparsaOff, false);
        return;
    }
    if (Button != 1 && Button != 2)
        return;
    // X lies in an arrow if the mouse is on one, and then the side is known.
    const QString lato =
        ImgTesta.Tag().isEmpty() ? LedTesta::lato(X, ImgTesta.Width()) : ImgTesta.Tag();
    if (Button == 1)
        collocaComparsa(lato, shCappelloOn, lblOn, mnuComparsaOn);
    else
        collocaComparsa(lato, shCappelloOff, lblOff, mnuComparsaOff);
    mostraComparsa(Button == 1 ? mnuComparsaOn : mnuComparsaOff, true);
}

// Over the half that the list is not about, and as high as its LED area: on its way from the other
// half the mouse crosses neither, which would change the side, nor the bare window, which would
// forget it.
void frmPrincipale::collocaComparsa(const QString &lato, Forma &cappello, Etichetta &testo,
                                    Elenco &lista)
{
    const QRect testa = ImgTesta.geometry();
    const int mezzo = testa.x() + testa.width() / 2;
    const int x = lato == u"destro" ? mezzo : mezzo - lista.width();
    const int y = testa.bottom() + 1 - lista.height();
    const int alto = testa.y() + Unita::pixel(Shape3.Top() + Shape3.Height());
    cappello.setGeometry(x, alto, lista.width(), y + 1 - alto);
    testo.setGeometry(cappello.geometry());
    lista.move(x, y);
}

void frmPrincipale::mostraComparsa(const Elenco &lista, bool visibile)
{
    if (visibile)
        ++m_comparse;
    if (&lista == &mnuComparsaOn)
        ImpostaVisibili(visibile, shCappelloOn, lblOn, mnuComparsaOn);
    else
        ImpostaVisibili(visibile, shCappelloOff, lblOff, mnuComparsaOff);
}

void frmPrincipale::tmrAnimazFrecce_Timer()
{
    PassoFrecce = LedTesta::passoSeguente(PassoFrecce);
    const QString lato = ImgTesta.Tag();
    if (lato.isEmpty()) {
        ImpostaVisibili(false, imgfr(0), imgfr(1), imgfr(2), imgfr(3));
        tmrAnimazFrecce.setEnabled(false);
    }
    const auto posti = LedTesta::frecce(PassoFrecce, lato, ImgTesta.Width());
    for (int i = imgfr.prima(); i <= imgfr.ultima(); ++i) {
        const LedTesta::Punto &posto = posti[static_cast<size_t>(i)];
        imgfr(i).Move(posto.Left, posto.Top);
    }
}

void frmPrincipale::mnuComparsa_MouseMove(Elenco &lista, bool acceso, double Y)
{
    // Selecting a row raises the list's Click: the Tag tells it that nobody has clicked.
    lista.setTag(u"NO"_s);
    passaErrori([&] { lista.setListIndex(LedTesta::rigaSotto(Y, lista.AltezzaRiga())); });
    const QString testo = LedTesta::suggerimento(lista.ListIndex(), ImgTesta.Tag(), acceso);
    if (!testo.isEmpty())
        BarraStato.setPanels(3, testo);
    lista.setTag(u"SI"_s);
}

void frmPrincipale::mnuComparsa_Click(const Elenco &lista, bool acceso)
{
    if (lista.Tag() == u"NO"_s)
        return;
    const int questa = m_comparse;
    mandaOInserisci(LedTesta::azione(lista.ListIndex(), ImgTesta.Tag(), acceso));
    // During the wait the user may have closed it and asked for one again.
    if (questa == m_comparse)
        mostraComparsa(lista, false);
}
