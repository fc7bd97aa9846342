#include "app/mbemain.h"

void MBEMain::setupProgram() { }
void MBEMain::APStart() { }
void MBEMain::APPause() { }
void MBEMain::APOneTick() { }
void MBEMain::APCopy() { }
void MBEMain::APCut() { }
void MBEMain::APPasteUp() { }
void MBEMain::APPasteDown() { }
void MBEMain::APUndo() { }
void MBEMain::APLoad() { }
void MBEMain::APSave() { }
void MBEMain::APClear() { }
void MBEMain::APCheck() { }
void MBEMain::APLoadProg(QString) { }
void MBEMain::APSaveProg(QString) { }
