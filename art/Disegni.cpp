#include "art/Disegni.h"

#include <QGuiApplication>
#include <QPixmap>
#include <cmath>
#include <initializer_list>

using namespace Qt::StringLiterals;

// The linker drops the resources of a static library if no code names them.
static void caricaRisorse()
{
    Q_INIT_RESOURCE(disegni);
}

namespace {

std::vector<QIcon> lista(std::initializer_list<QStringView> nomi)
{
    std::vector<QIcon> icone;
    icone.reserve(nomi.size());
    for (const QStringView nome : nomi)
        icone.push_back(Disegni::icona(nome));
    return icone;
}

std::vector<QIcon> fotogrammi(const QString &nome, int quanti)
{
    std::vector<QIcon> icone;
    for (int i = 1; i <= quanti; ++i)
        icone.push_back(Disegni::icona(nome + QString::number(i)));
    return icone;
}

} // namespace

QIcon Disegni::icona(QStringView nome)
{
    caricaRisorse();
    const QString inizio = u":/art/"_s + nome.toString();
    QIcon icona;
    const auto aggiungi = [&](const QString &coda, int scala) {
        QPixmap disegno(inizio + coda + u".png"_s);
        if (disegno.isNull())
            return;
        disegno.setDevicePixelRatio(scala);
        icona.addPixmap(disegno);
    };
    aggiungi(u""_s, 1);
    aggiungi(u"@2x"_s, 2);
    aggiungi(u"@3x"_s, 3);

    // On a screen of 125 or 150 % Qt would enlarge the 1x picture. The next larger one, reduced,
    // looks better.
    const double schermo = qGuiApp->devicePixelRatio();
    const double intera = std::ceil(schermo);
    if (!icona.isNull() && schermo < intera && intera <= 3) {
        QPixmap grande(inizio + u"@%1x.png"_s.arg(static_cast<int>(intera)));
        grande.setDevicePixelRatio(intera);
        QPixmap ridotto = grande.scaled((grande.deviceIndependentSize() * schermo).toSize(),
                                        Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        ridotto.setDevicePixelRatio(schermo);
        icona.addPixmap(ridotto);
    }
    if (icona.isNull())
        for (const int lato : {16, 32, 48, 128, 256})
            aggiungi(u"-%1"_s.arg(lato), 1);
    return icona;
}

std::vector<QIcon> Disegni::listaImg()
{
    return lista({u"freccia_su", u"freccia_sinistra", u"freccia_destra", u"freccia_giu",
                  u"freccia_su_premuta", u"freccia_sinistra_premuta", u"freccia_destra_premuta",
                  u"freccia_giu_premuta", u"passi_verticali", u"velocita", u"passi_orizzontali",
                  u"giro"});
}

std::vector<QIcon> Disegni::imgPulsantiConsole()
{
    return lista({u"barra_connetti", u"barra_opzioni", u"barra_video", u"barra_sequor",
                  u"barra_vigilio", u"barra_disconnetti", u"barra_file", u"barra_immagini"});
}

std::vector<QIcon> Disegni::imgPulsantiEditor()
{
    return lista({u"ed_cancella", u"ed_pausa", u"ed_su", u"ed_giu", u"ed_frase", u"ed_suono",
                  u"ed_cancella_sopra", u"ed_pausa_sopra", u"ed_su_sopra", u"ed_giu_sopra",
                  u"ed_frase_sopra", u"ed_suono_sopra"});
}

std::vector<QIcon> Disegni::lstImgVigilio()
{
    return lista({u"vigilio_spento", u"vigilio_attesa", u"vigilio_avviato"});
}

std::vector<QIcon> Disegni::attesaIniziale()
{
    return fotogrammi(u"attesa_iniziale_"_s, 6);
}

std::vector<QIcon> Disegni::lstImgAttesa()
{
    return fotogrammi(u"attesa_file_"_s, 8);
}

std::vector<QIcon> Disegni::imgCaselle()
{
    return lista({u"casella_vuota", u"casella_spuntata"});
}
