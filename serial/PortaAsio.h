// The real serial line, over Asio.
#pragma once

#include "serial/Porta.h"

#include <memory>

class PortaAsio : public Porta
{
public:
    PortaAsio();
    ~PortaAsio() override;

    void apri(const QString &percorso) override;
    void chiudi() override;
    bool aperta() const override;
    void scrivi(QByteArrayView byte) override;
    QByteArray leggi(qsizetype massimo) override;
    void sorveglia(bool attiva) override;

private:
    struct Linea;
    std::unique_ptr<Linea> m_linea;
};
