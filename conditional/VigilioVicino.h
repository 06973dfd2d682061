// The runner, as the editor sees it.
#pragma once

#include "movelists/Vicini.h"

class frmProcessor;

class VigilioVicino : public VigilioEditor
{
public:
    explicit VigilioVicino(frmProcessor &processor) : m_processor(processor) {}

    void mostra() override;
    bool avviato() const override;
    void Stoppa() override;
    int ListCount() const override;
    QString File(int riga) const override;
    QString condizione(int riga) const override;
    bool Selected(int riga) const override;
    void setSelected(int riga, bool valore) override;
    void setListIndex(int riga) override;
    void lstFile_DblClick() override;
    bool deselezionaEseguite() const override;

private:
    frmProcessor &m_processor;
};
