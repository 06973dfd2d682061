// Any bytes as a list file. The file is read and its commands are written to a port that discards
// them: the only failures are those of type Errore.
#include "base/Archivio.h"
#include "base/Errore.h"
#include "movelists/FileMosse.h"
#include "movelists/Mossa.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

class LineaSorda : public Porta
{
public:
    void apri(const QString &) override { m_aperta = true; }
    void chiudi() override { m_aperta = false; }
    bool aperta() const override { return m_aperta; }
    void scrivi(QByteArrayView) override {}
    QByteArray leggi(qsizetype) override { return {}; }
    void sorveglia(bool) override {}

private:
    bool m_aperta = false;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *byte, size_t quanti)
{
    static const QTemporaryDir cartella;
    static const QString nome = cartella.filePath(u"lista.sqm"_s);
    static ControlloSeriale COM(u"COM"_s, nullptr, std::make_unique<LineaSorda>(), QString());
    if (!COM.PortOpen())
        COM.setPortOpen(true);
    {
        QFile file(nome);
        if (!file.open(QIODevice::WriteOnly))
            return 0;
        file.write(reinterpret_cast<const char *>(byte), static_cast<qint64>(quanti));
    }
    passaErrori([] {
        Archivio::apri(1, nome, Archivio::Modo::Lettura);
        FileMosse::leggi(1, [](const QString &riga) {
            const Mossa mossa = leggiMossa(riga);
            if (mossa.comando)
                mossa.comando(COM);
        });
    });
    Archivio::abbandona();
    return 0;
}
