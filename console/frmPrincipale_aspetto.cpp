// How the console looks: where its controls stand, in logical pixels, and their tool tips.
#include "console/Attrezzi.h"
#include "console/LedTesta.h"
#include "console/frmPrincipale.h"

#include <QApplication>
#include <QLineEdit>

namespace {

constexpr int larghezza = 700;
constexpr int altezza = 508;

void metti(QWidget &controllo, int x, int y, int w, int h)
{
    controllo.setGeometry(x, y, w, h);
}

void suggerimento(QWidget &controllo, const QString &testo)
{
    controllo.setToolTip(testo);
    controllo.setAccessibleName(testo);
}

void titolo(QLabel &etichetta, Qt::Alignment dove = Qt::AlignHCenter)
{
    QFont font = etichetta.font();
    font.setBold(true);
    etichetta.setFont(font);
    etichetta.setAlignment(dove | Qt::AlignVCenter);
}

// A label that looks like a button, on the shape that is its plate.
void targa(Forma &forma, Etichetta &etichetta, const QColor &fondo, const QColor &testo)
{
    forma.setColori(fondo, fondo.darker(130), 5);
    etichetta.setAlignment(Qt::AlignCenter);
    etichetta.setForeColor(testo);
    etichetta.setCursor(Qt::PointingHandCursor);
    etichetta.raise();
}

// Keys belong to the robot: such a control takes the focus by a click at most, and gives it back.
void senzaTasti(QWidget &controllo)
{
    controllo.setFocusPolicy(Qt::ClickFocus);
}

} // namespace

void frmPrincipale::disponi()
{
    setFixedSize(larghezza, altezza);
    QFont carattere = font();
    carattere.setPixelSize(12);
    setFont(carattere);

    const QColor fondo = palette().color(QPalette::Base);
    const QColor bordo = palette().color(QPalette::Mid);
    const QRect piastre[] = {
        {10, 56, 280, 308},  {296, 56, 100, 116}, {402, 56, 288, 200},
        {296, 178, 100, 90}, {296, 274, 100, 90}, {402, 262, 288, 102},
        {10, 370, 280, 86},  {402, 370, 120, 86}, {528, 370, 162, 86},
    };
    for (int i = Shape.prima(); i <= Shape.ultima(); ++i) {
        Shape(i).setGeometry(piastre[i - Shape.prima()]);
        Shape(i).setColori(fondo, bordo, 6);
    }

    metti(BarraPulsanti, 0, 0, larghezza, 50);
    BarraPulsanti.setAccessibleName(u"Barra dei pulsanti"_s);
    BarraPulsanti.aggiungi(1, u"Connetti ad Tessaro"_s);
    BarraPulsanti.aggiungi(2, u"Accedi alle opzioni"_s);
    BarraPulsanti.aggiungiSeparatore();
    BarraPulsanti.aggiungi(3, u"Accedi alla visione della Videocamera di Tessaro"_s);
    BarraPulsanti.aggiungi(4, u"Accedi all'editor delle mosse Sequor"_s);
    BarraPulsanti.aggiungi(5, u"Accedi al Vigilio"_s);
    BarraPulsanti.aggiungi(7, u"Esplora i file all'interno di Tessaro"_s);

    disponiMovimenti();
    disponiTesta();
    disponiAttrezzi();
    disponiVoce();
    disponiTelemetria();

    metti(BarraCaricamento, 10, 463, larghezza - 20, 8);
    suggerimento(BarraCaricamento, u"Attesa della risposta del robot"_s);
    metti(BarraStato, 0, 476, larghezza, 30);
    BarraStato.setAccessibleName(u"Barra di stato"_s);
    BarraStato.setPanels(1, u"Non connesso"_s);
    lstImgCamera.hide();
    lblProva.hide();
    ImgTesta.setFocusPolicy(Qt::StrongFocus);
}

void frmPrincipale::disponiMovimenti()
{
    titolo(Label1, Qt::AlignLeft);
    metti(Label1, 20, 60, 150, 20);

    int y = 84;
    for (CasellaOpzione *opzione : {&opzBase, &opzBraccia, &opzTesta}) {
        // The mark stands inside the coloured field, not on its edge.
        opzione->setStyleSheet(u"padding-left: 7px"_s);
        metti(*opzione, 18, y, 158, 28);
        senzaTasti(*opzione);
        y += 34;
    }

    titolo(lblOpzioni);
    metti(lblOpzioni, 184, 60, 100, 20);
    metti(cbVelocità, 212, 88, 72, 26);
    metti(cbModGiro, 212, 124, 72, 26);
    metti(cbStepV, 212, 88, 72, 26);
    metti(cbStepO, 212, 124, 72, 26);
    metti(Image1, 184, 88, 24, 24);
    metti(Image2, 184, 124, 24, 24);
    for (const QString &testo : {u"piano"_s, u"veloce"_s})
        cbVelocità.AddItem(testo);
    for (const QString &testo : {u"½"_s, u"¼"_s, u"~"_s})
        cbModGiro.AddItem(testo);
    suggerimento(cbVelocità, u"Velocità"_s);
    suggerimento(cbModGiro, u"Tipo di rotazione su sé stesso"_s);
    cbModGiro.lineEdit()->setAccessibleName(cbModGiro.accessibleName());
    cbStepV.setAccessibleName(u"STEP verticali"_s);
    cbStepO.setAccessibleName(u"STEP orizzontali"_s);
    for (Combo *combo : {&cbVelocità, &cbModGiro, &cbStepV, &cbStepO})
        senzaTasti(*combo);

    const QPoint frecce[] = {{174, 206}, {113, 252}, {235, 252}, {174, 298}, {34, 216},
                             {34, 290},  {187, 84},  {235, 84},  {187, 136}, {235, 136}};
    const QString nomi[] = {u"Su"_s,
                            u"Sinistra"_s,
                            u"Destra"_s,
                            u"Giù"_s,
                            u"Alza il bacino"_s,
                            u"Abbassa il bacino"_s,
                            u"Alza il braccio sinistro"_s,
                            u"Alza il braccio destro"_s,
                            u"Abbassa il braccio sinistro"_s,
                            u"Abbassa il braccio destro"_s};
    for (int i = 1; i <= 10; ++i) {
        const QPoint posto = frecce[i - 1];
        metti(imgFreccia(i), posto.x(), posto.y(), 48, 48);
        imgFreccia(i).setAccessibleName(nomi[i - 1]);
        imgFreccia(i).setCursor(Qt::PointingHandCursor);
        imgFreccia(i).setPicture(i <= 4 ? i : 0);
    }
    imgFreccia(5).setToolTip(nomi[4]);
    imgFreccia(6).setToolTip(nomi[5]);
    titolo(Label2);
    metti(Label2, 24, 266, 68, 20);

    shpStop.Size(64 * 15, 32 * 15);
    lblStop.Size(64 * 15, 32 * 15);
    shpStop.Move(2490, 3900);
    lblStop.Move(2490, 3900);
    titolo(lblStop);
    targa(shpStop, lblStop, QColor(0xC6, 0x28, 0x28), Qt::white);
    suggerimento(lblStop, u"Stoppa il robot"_s);
    opzBase.setValue(true);
    opzBase_Click();
}

void frmPrincipale::disponiTesta()
{
    titolo(lblLED, Qt::AlignLeft);
    metti(lblLED, 412, 60, 100, 20);
    metti(ImgTesta, 424, 84, 160, 152);
    ImgTesta.setSfondo(Disegni::icona(u"testa"));
    suggerimento(ImgTesta, u"Click sinistro: accendi LED. Click destro: spegni LED"_s);
    for (int i = imgfr.prima(); i <= imgfr.ultima(); ++i) {
        imgfr(i).resize(32, 32);
        imgfr(i).setDisegno(Disegni::icona(u"freccia_testa_"_s + QString::number(i)));
        suggerimento(imgfr(i), ImgTesta.toolTip());
        const LedTesta::Punto posto =
            LedTesta::frecce(0, u"destro"_s, ImgTesta.Width())[static_cast<size_t>(i)];
        imgfr(i).Move(posto.Left, posto.Top);
        imgfr(i).hide();
    }
    const auto targhetta = [](Forma &forma, Etichetta &etichetta, double left, double width) {
        QFont piccolo = etichetta.font();
        piccolo.setPixelSize(10);
        etichetta.setFont(piccolo);
        forma.Size(width, 255);
        etichetta.Size(width, 255);
        forma.Move(left, 240);
        etichetta.Move(left, 240);
        targa(forma, etichetta, QColor(0xFF, 0xF3, 0xC4), Qt::black);
    };
    targhetta(Shape3, lblAccLED, 60, 1065);
    targhetta(Shape4, lblSpLED, 1140, 1200);

    metti(imgLEDPos, 620, 150, 40, 40);
    suggerimento(imgLEDPos, u"LED di posizione. Click sinistro: accendi. Click destro: spegni"_s);
    const auto comparsa = [](Forma &cappello, Etichetta &testo, Elenco &lista,
                             const QColor &colore) {
        cappello.setColori(colore, colore.darker(130), 4);
        titolo(testo);
        testo.setForeColor(Qt::black);
        QFont font = lista.font();
        font.setPointSizeF(11.25);
        lista.setFont(font);
        lista.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        lista.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        lista.setAccessibleName(testo.text());
        lista.setFocusPolicy(Qt::NoFocus);
        for (const QString &voce : {u"Verde"_s, u"Giallo"_s, u"Rosso"_s, u"Blu"_s})
            lista.AddItem(voce);
        lista.resize(100, 4 * lista.sizeHintForRow(0) + 2 * lista.frameWidth());
        for (QWidget *parte : std::initializer_list<QWidget *>{&cappello, &testo, &lista}) {
            parte->raise();
            parte->hide();
        }
    };
    comparsa(shCappelloOn, lblOn, mnuComparsaOn, QColor(0xA5, 0xE6, 0xA5));
    comparsa(shCappelloOff, lblOff, mnuComparsaOff, QColor(0xE0, 0xB4, 0xB4));
}

void frmPrincipale::disponiAttrezzi()
{
    titolo(Label11);
    metti(Label11, 296, 60, 100, 20);
    metti(imgFoto, 332, 92, 28, 28);
    imgFoto.setAccessibleName(u"Macchina fotografica"_s);
    Shape12.Size(1380, 420);
    lblScattaFoto.Size(1380, 420);
    Shape12.Move(4500, 2040);
    lblScattaFoto.Move(4500, 2040);
    targa(Shape12, lblScattaFoto, QColor(0xD6, 0xE8, 0xF7), Qt::black);
    lblScattaFoto.setAccessibleName(u"Scatta una foto"_s);

    titolo(Label3);
    metti(Label3, 296, 180, 100, 18);
    for (Etichetta *etichetta : {&Label4, &Label5})
        etichetta->setAlignment(Qt::AlignCenter);
    metti(Label4, 298, 198, 50, 18);
    metti(Label5, 348, 198, 46, 18);
    metti(imgToolSx, 302, 220, 40, 40);
    metti(imgToolDx, 350, 220, 40, 40);
    for (Immagine *tool : {&imgToolSx, &imgToolDx}) {
        suggerimento(*tool, u"Click sinistro: accendi tool. Click destro: spegni tool."_s);
        tool->setCursor(Qt::PointingHandCursor);
    }
    // They have the tool tip, and so the name, in common.
    imgToolSx.setAccessibleDescription(Attrezzi::nomeTool(Attrezzi::Lato::Sinistro));
    imgToolDx.setAccessibleDescription(Attrezzi::nomeTool(Attrezzi::Lato::Destro));

    titolo(Label9);
    metti(Label9, 296, 278, 100, 20);
    metti(imgPinzaAperta, 302, 308, 40, 40);
    metti(imgPinzaChiusa, 350, 308, 40, 40);
    suggerimento(imgPinzaAperta, u"Apri la pinza"_s);
    suggerimento(imgPinzaChiusa, u"Chiudi la pinza"_s);
    for (Immagine *immagine : {&imgLEDPos, &imgPinzaAperta, &imgPinzaChiusa})
        immagine->setCursor(Qt::PointingHandCursor);
}

void frmPrincipale::disponiVoce()
{
    const auto riga = [](CasellaTesto &testo, ::SuGiu &suGiu, Pulsante &pulsante, int y,
                         const QString &nome) {
        metti(testo, 22, y, 56, 28);
        testo.setAlignment(Qt::AlignRight);
        testo.setAccessibleName(nome);
        metti(suGiu, 79, y, 20, 28);
        suGiu.setAccessibleName(nome);
        metti(pulsante, 112, y, 166, 28);
    };
    riga(txtValFrase, SuGiu1, pulFrase, 381, u"Numero della frase"_s);
    riga(txtValSuono, SuGiu2, pulSuono, 417, u"Numero del suono"_s);

    corMex.setObjectName(u"corMex"_s);
    metti(corMex, 296, 370, 226, 86);
    Shape(27).hide();
    corMex.setStyleSheet(
        u"QGroupBox { background: palette(base); border: 1px solid palette(mid);"
        " border-radius: 6px; margin: 0; }"
        " QGroupBox::title { subcontrol-origin: padding; subcontrol-position: top left;"
        " left: 7px; top: 4px; font-weight: bold; }"_s);
    QFont grassetto = corMex.font();
    grassetto.setBold(true);
    corMex.setFont(grassetto);
    cbMex.setFont(font());
    metti(cbMex, 12, 40, 60, 28);
    cbMex.setAccessibleName(u"Numero del messaggio"_s);
    senzaTasti(cbMex);
    const auto pulsante = [](Immagine &immagine, int x, const QString &nome) {
        metti(immagine, x, 39, 30, 30);
        suggerimento(immagine, nome);
        immagine.setCursor(Qt::PointingHandCursor);
    };
    pulsante(pulPlayMex, 82, u"Play"_s);
    pulsante(pulRegistraMex, 117, u"Registra"_s);
    pulsante(pulStopMex, 152, u"Stop"_s);
    pulsante(pulCancMex, 187, u"Cancella"_s);

    titolo(Label6, Qt::AlignLeft);
    metti(Label6, 538, 372, 140, 20);
    metti(cbProgrammi, 540, 410, 60, 28);
    cbProgrammi.setAccessibleName(u"Numero del programma interno"_s);
    senzaTasti(cbProgrammi);
    metti(imgPlayProg, 612, 409, 30, 30);
    metti(imgStopProg, 648, 409, 30, 30);
    suggerimento(imgPlayProg, u"Fai partire il programma memorizzato nel ROBOT"_s);
    suggerimento(imgStopProg, u"Stoppa il programma memorizzato nel ROBOT"_s);
    for (Immagine *immagine : {&imgPlayProg, &imgStopProg})
        immagine->setCursor(Qt::PointingHandCursor);
}

void frmPrincipale::disponiTelemetria()
{
    metti(imgSensori, 414, 277, 120, 72);
    imgSensori.setAccessibleName(u"Sensori a ultrasuoni"_s);
    const auto segno = [](Forma &forma, int x, int y, const QString &nome) {
        metti(forma, x, y, 18, 18);
        forma.setColori(QColor(0xE5, 0x39, 0x35), QColor(0x8E, 0x1B, 0x1B), 9);
        forma.setAccessibleName(nome);
        forma.raise();
        forma.hide();
    };
    segno(shpUltrasuoniSx, 420, 290, u"Ostacolo a sinistra"_s);
    segno(shpUltrasuoniCe, 465, 280, u"Ostacolo davanti"_s);
    segno(shpUltrasuoniDx, 510, 290, u"Ostacolo a destra"_s);

    const auto batteria = [](Etichetta &nome, Immagine &contorno, Forma &livello, int y) {
        metti(nome, 542, y, 78, 20);
        metti(contorno, 626, y - 2, 56, 24);
        metti(livello, 630, y + 3, 41, 14);
        livello.setColori(QColor(0x43, 0xA0, 0x47), Qt::transparent, 0, 0);
        contorno.setAccessibleName(u"Batteria "_s + nome.text().toLower());
        livello.raise();
        livello.hide();
    };
    batteria(Label7, imgBattLogica, imgLivBattLogica, 272);
    batteria(Label8, imgBattMotori, imgLivBattMotori, 302);
    metti(Label10, 542, 332, 80, 20);
    metti(imgTermometro, 626, 330, 24, 24);
    metti(lblTemperatura, 652, 332, 36, 20);
    imgTermometro.setAccessibleName(u"Termometro"_s);
    // A screen reader reads the name out, not the text.
    const auto leggiAlta = [this] {
        lblTemperatura.setAccessibleName((u"Temperatura "_s + lblTemperatura.Caption()).trimmed());
    };
    leggiAlta();
    lblTemperatura.Change.collega(leggiAlta);
    titolo(lblTemperatura, Qt::AlignLeft);
}
