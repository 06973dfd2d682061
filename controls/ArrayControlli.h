// An array of controls of one kind, each named with its index.
#pragma once

#include "base/Errore.h"

#include <QString>
#include <QWidget>
#include <memory>
#include <vector>

template <class Tipo>
class ArrayControlli
{
public:
    // Creates the controls "nome(prima)" to "nome(ultima)". The arguments altro go to each one's
    // constructor, after its name and its parent.
    template <class... Altro>
    ArrayControlli(const QString &nome, int prima, int ultima, QWidget *dentro,
                   const Altro &...altro)
        : m_prima(prima)
    {
        for (int i = prima; i <= ultima; ++i) {
            const QString conIndice =
                nome + QLatin1Char('(') + QString::number(i) + QLatin1Char(')');
            m_controlli.push_back(std::make_unique<Tipo>(conIndice, dentro, altro...));
        }
    }

    int prima() const { return m_prima; }
    int ultima() const { return m_prima + static_cast<int>(m_controlli.size()) - 1; }

    // Throws Errore::ProprietaNonValida if the index does not exist.
    Tipo &operator()(int indice)
    {
        if (indice < prima() || indice > ultima())
            throw Errore(Errore::ProprietaNonValida);
        return *m_controlli[static_cast<size_t>(indice - m_prima)];
    }

private:
    int m_prima;
    std::vector<std::unique_ptr<Tipo>> m_controlli;
};
