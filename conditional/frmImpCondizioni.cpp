#include "conditional/frmImpCondizioni.h"

#include "base/Archivio.h"
#include "base/Numeri.h"
#include "conditional/ProgDat.h"

#include <algorithm>

namespace {

// &HFF8080 and &HC00000, blue first.
constexpr QColor coloreSpento(0x80, 0x80, 0xFF);
constexpr QColor coloreAcceso(0x00, 0x00, 0xC0);

constexpr int gradiMassimi = 40;
constexpr int gradiSeNo = 25;
constexpr int caricheSeNo = 3;
constexpr qsizetype lunghezzaNome = 30;
constexpr int sensori = 3;

bool soloCifre(QStringView testo)
{
    return !testo.isEmpty() &&
           std::ranges::all_of(testo, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QString senzaBianchiInFondo(QString testo)
{
    while (testo.endsWith(u' '))
        testo.chop(1);
    return testo;
}

} // namespace

frmImpCondizioni::frmImpCondizioni(Elenco &lstFile, Elenco &lstCondizioni, const Orologio &orologio)
    : Finestra(u"frmImpCondizioni"_s, u"Imposta condizione di avvio"_s),
      frame(u"frame"_s, 1, campiCondizione, this, QString(), rientroTitolo),
      imgCasella(u"imgCasella"_s, 1, campiCondizione, this, &imgCaselle, 1),
      opzSens(u"opzSens"_s, 1, sensori, &frame(CampoUltrasuoni), QString()),
      m_lstFile(lstFile),
      m_lstCondizioni(lstCondizioni),
      m_orologio(orologio)
{
    disponi();
    Disegno();
    collegaEventi();
}

void frmImpCondizioni::collegaEventi()
{
    for (int i = frame.prima(); i <= frame.ultima(); ++i) {
        frame(i).Click.collega([this, i] { frame_Click(i); });
        imgCasella(i).Click.collega([this, i] { frame_Click(i); });
    }
    for (const Ora &ora : m_ore) {
        ora.barra.Change.collega([this, &ora] { SuGiu_Change(ora); });
        ora.testo.KeyPress.collega(::soloCifre);
        ora.testo.LostFocus.collega([this, &ora] { txtOra_LostFocus(ora); });
    }
    for (int k = opzSens.prima(); k <= opzSens.ultima(); ++k)
        opzSens(k).Click.collega(this, &frmImpCondizioni::opzSens_Click);
    for (const Ora &ora : m_ore)
        m_tasto.segui(ora.testo);
    for (Combo *combo : {&cbTemperatura, &cbBattLogica, &cbBattMotori})
        m_tasto.segui(*combo);
    m_tasto.lasciato = [this] { passaErrori([this] { pulOK.SetFocus(); }); };
    cbTemperatura.Click.collega([this] { attiva(CampoTemperatura); });
    cbBattLogica.Click.collega([this] { attiva(CampoLogica); });
    cbBattMotori.Click.collega([this] { attiva(CampoMotori); });
    pulOK.Click.collega(this, &frmImpCondizioni::pulOK_Click);
    pulAnnulla.Click.collega(this, &frmImpCondizioni::pulAnnulla_Click);
}

void frmImpCondizioni::Load()
{
    // A list that starts meanwhile becomes the current one.
    m_riga = m_lstFile.ListIndex();
}

QString frmImpCondizioni::condizioneCorrente() const
{
    QString condizione;
    passaErrori([&] { condizione = m_lstCondizioni.List(m_riga); });
    return condizione;
}

void frmImpCondizioni::Activate()
{
    const QString condizione = condizioneCorrente();
    QString lista;
    passaErrori([&] { lista = m_lstFile.List(m_riga); });
    // From the start text, as the window may be activated more than once.
    lblSpiegazione.setCaption(
        Tag() == u"Predefinita"
            ? u"Imposta la condizione predefinita per l'avvio automatico delle liste"_s
            : spiegazione.toString() + u'"' + senzaBianchiInFondo(lista.left(lunghezzaNome)) +
                  u'"');
    for (int i = frame.prima(); i <= frame.ultima(); ++i) {
        if (campoNo(condizione, i))
            continue;
        attiva(i);
        imgCasella(i).setPicture(2);
        abilitaOK();
    }
    mostraOrario(condizione);
    mostraSensori(condizione);
    cbTemperatura.Clear();
    for (int gradi = 0; gradi <= gradiMassimi; ++gradi)
        cbTemperatura.AddItem(QString::number(gradi));
    mostraScelta(CampoTemperatura, cbTemperatura, condizione, 2, gradiSeNo);
    mostraScelta(CampoLogica, cbBattLogica, condizione, 1, caricheSeNo);
    mostraScelta(CampoMotori, cbBattMotori, condizione, 1, caricheSeNo);
}

void frmImpCondizioni::mostraOrario(const QString &condizione)
{
    imgCasella(CampoOrario).setTag(u"False"_s);
    // Midnight to the second stands for no time.
    if (campoNo(condizione, CampoOrario) || condizione.startsWith(u"00:00:00")) {
        const QTime adesso = m_orologio.adesso();
        txtOre.setText(QString::number(adesso.hour()));
        txtMinuti.setText(QString::number(adesso.minute()));
        txtSecondi.setText(QString::number(adesso.second()));
        if (attivo(CampoOrario))
            frame_Click(CampoOrario);
    } else {
        qsizetype posto = 0;
        for (const Ora &ora : m_ore) {
            const double numero = Numeri::Valore(QStringView(condizione).mid(posto, 2));
            ora.testo.setText(QString::number(numero));
            posto += 3;
        }
    }
    for (const Ora &ora : m_ore)
        txtOra_LostFocus(ora);
    imgCasella(CampoOrario).setTag(u"True"_s);
}

void frmImpCondizioni::mostraSensori(const QString &condizione)
{
    imgCasella(CampoUltrasuoni).setTag(u"False"_s);
    if (!campoNo(condizione, CampoUltrasuoni)) {
        const QStringView cifre = testoCampo(condizione, CampoUltrasuoni);
        for (int k = opzSens.prima(); k <= opzSens.ultima(); ++k)
            opzSens(k).setValue(Numeri::Valore(cifre.mid(k - 1, 1)) == 1 ? 1 : 0);
    }
    imgCasella(CampoUltrasuoni).setTag(u"True"_s);
}

void frmImpCondizioni::mostraScelta(int pannello, Combo &combo, const QString &condizione,
                                    qsizetype cifre, int seNo)
{
    imgCasella(pannello).setTag(u"False"_s);
    const double riga = campoNo(condizione, pannello)
                            ? seNo
                            : Numeri::Valore(testoCampo(condizione, pannello).left(cifre));
    if (!passaErrori([&] { combo.setListIndex(Numeri::Lungo(riga)); }) || combo.ListIndex() < 0)
        combo.setListIndex(seNo);
    imgCasella(pannello).setTag(u"True"_s);
}

bool frmImpCondizioni::attivo(int pannello)
{
    return Numeri::Logico(frame(pannello).Tag());
}

void frmImpCondizioni::attiva(int pannello)
{
    if (!attivo(pannello) && Numeri::Logico(imgCasella(pannello).Tag()))
        frame_Click(pannello);
}

void frmImpCondizioni::mostra(int pannello, bool acceso)
{
    frame(pannello).setForeColor(acceso ? coloreAcceso : coloreSpento);
    imgCasella(pannello).setPicture(acceso ? 2 : 1);
    imgCasella(pannello).setAccessibleDescription(acceso ? u"attivo"_s : u"non attivo"_s);
}

void frmImpCondizioni::abilitaOK()
{
    pulOK.setEnabled(true);
    // A box that loses the focus as the dialog goes away comes here, too.
    if (!m_tasto.trattiene(focusWidget()))
        passaErrori([this] { pulOK.SetFocus(); });
}

void frmImpCondizioni::disabilitaOK()
{
    // Disabled, it would hand the focus on to the button that takes the check mark away.
    if (focusWidget() == &pulOK)
        imgCasella(CampoOrario).setFocus(Qt::OtherFocusReason);
    pulOK.setEnabled(false);
}

void frmImpCondizioni::frame_Click(int Index)
{
    frame(Index).setTag(QString::number(~Numeri::Lungo(frame(Index).Tag())));
    mostra(Index, attivo(Index));
    if (attivo(CampoUltrasuoni) && opzSens(1).Value() == 0 && opzSens(3).Value() == 0)
        opzSens(2).setValue(1);
    for (int i = frame.prima(); i <= frame.ultima(); ++i) {
        if (attivo(i)) {
            abilitaOK();
            return;
        }
    }
    disabilitaOK();
}

void frmImpCondizioni::opzSens_Click()
{
    if (!Numeri::Logico(imgCasella(CampoUltrasuoni).Tag()))
        return;
    for (int k = opzSens.prima(); k <= opzSens.ultima(); ++k) {
        if (opzSens(k).Value() == 1) {
            attiva(CampoUltrasuoni);
            return;
        }
    }
    if (attivo(CampoUltrasuoni))
        frame_Click(CampoUltrasuoni);
}

void frmImpCondizioni::SuGiu_Change(const Ora &ora)
{
    if (ora.barra.Value() == ora.fine)
        ora.barra.setValue(0);
    else if (ora.barra.Value() == -1)
        ora.barra.setValue(ora.fine - 1);
    ora.testo.setText(QString::number(ora.barra.Value()));
    attiva(CampoOrario);
}

// What was typed is digits only; what was pasted may be anything, and is read as a number.
void frmImpCondizioni::txtOra_LostFocus(const Ora &ora)
{
    double numero = qMax(0.0, Numeri::Valore(ora.testo.Text()));
    if (numero > ora.fine)
        numero = ora.fine - 1;
    else if (numero == ora.fine)
        numero = 0;
    const qint32 intero = Numeri::Lungo(numero);
    if (!soloCifre(ora.testo.Text()) || Numeri::Valore(ora.testo.Text()) != intero)
        ora.testo.setText(QString::number(intero));
    ora.barra.setValue(intero);
}

QString frmImpCondizioni::campo(int pannello)
{
    if (!attivo(pannello))
        return u"no"_s;
    QStringList parti;
    switch (pannello) {
    case CampoOrario:
        for (const Ora &ora : m_ore)
            parti += QString::number(Numeri::Lungo(ora.testo.Text())).rightJustified(2, u'0');
        return parti.join(u':');
    case CampoUltrasuoni:
        for (int k = opzSens.prima(); k <= opzSens.ultima(); ++k)
            parti += QString::number(opzSens(k).Value());
        return parti.join(QString());
    case CampoTemperatura:
        return cbTemperatura.Text();
    case CampoLogica:
        return QString::number(cbBattLogica.ListIndex());
    default:
        return QString::number(cbBattMotori.ListIndex());
    }
}

QString frmImpCondizioni::componi()
{
    std::array<QString, campiCondizione> campi;
    for (int i = frame.prima(); i <= frame.ultima(); ++i)
        campi[static_cast<size_t>(i - frame.prima())] = campo(i);
    return componiCondizione(campi);
}

void frmImpCondizioni::pulOK_Click()
{
    try {
        // Enter leaves the focus in the box in which a time was typed.
        for (const Ora &ora : m_ore) {
            if (ora.testo.hasFocus())
                txtOra_LostFocus(ora);
        }
        const QString condizione = componi();
        if (Tag() == u"Predefinita")
            ProgDat::scriviCondizione(condizione);
        else
            m_lstCondizioni.setList(m_riga, condizione);
        setTag(u"OK"_s);
        Nascondi();
    } catch (const Errore &) {
        // The dialog stays, with all that was set. Half a file is dropped: to close it could fail.
        Archivio::abbandona();
    }
}

void frmImpCondizioni::pulAnnulla_Click()
{
    setTag({});
    Nascondi();
}

void frmImpCondizioni::QueryUnload(bool &Cancel, Chiusura UnloadMode)
{
    if (UnloadMode != Chiusura::Utente)
        return;
    pulAnnulla_Click();
    Cancel = true;
}
