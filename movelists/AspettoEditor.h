// How the Sequor looks: the places and the fixed looks of its controls.
#pragma once

class frmEditor;

// Called once, before the design values are set.
void disponiEditor(frmEditor &editor);
