// How the Vigilio looks: the places and the fixed looks of its controls.
#pragma once

class frmProcessor;

// Called once, before the design values are set.
void disponiProcessor(frmProcessor &processor);
