// The runner on a bench, with the real editor beneath it; the console is stood in for.
#pragma once

#include "conditional/frmProcessor.h"
#include "tests/conditional/OrologioFermo.h"
#include "tests/movelists/BancoEditor.h"

class CollegamentoFinto : public ConsoleVigilio
{
public:
    explicit CollegamentoFinto(SerialeFinto &seriale) : m_seriale(seriale) {}

    bool PortOpen() override { return m_seriale.COM.PortOpen(); }
    bool collegato() override { return riesce && !tenta && PortOpen(); }
    bool staTentando() override { return tenta; }
    // The port is open while it is tried, as a real one is.
    void Collega() override;

    // Whether connecting succeeds, whether it is being tried, by whomever, how often it was tried
    // from here, what happens meanwhile.
    bool riesce = true;
    bool tenta = false;
    int tentativi = 0;
    std::function<void()> intanto;
    // What happens after it.
    std::function<void()> dopo;

private:
    SerialeFinto &m_seriale;
};

class BancoVigilio : protected Banco
{
protected:
    // The folder has a "prog.dat" with the factory default condition.
    BancoVigilio();
    ~BancoVigilio();

    // Lists of one long pause each, so that whoever runs goes on running.
    void creaListe(const QStringList &nomi) const;
    // Makes the lists and shows the window, active.
    void mostraVigilio(const QStringList &nomi);
    // The same, connected and started, with the lists of these conditions selected.
    void avvia(const QList<std::pair<QString, QString>> &liste);
    void imposta(int riga, const QString &condizione, bool selezionata = true);
    void scegli(int riga, bool selezionata = true);
    void cliccaVigilio(QWidget &controllo, std::optional<QPoint> dove = {});

    QStringList righeVigilio() const;
    QStringList condizioni() const;
    QList<bool> scelte() const;
    // The list that runs, empty where none does.
    QString inCorso() const;

    OrologioFermo orologio;
    CollegamentoFinto collegamento{seriale};
    frmProcessor processor{collegamento, editor, orologio, cartella.percorso()};
};

inline const QString fabbrica = u"00:00:00,no,no,no,no"_s;
