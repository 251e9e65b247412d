#pragma once

class QWidget;

// The about box of the collection: version, licence, where the help is.
// Not modal to the caller: it opens and returns.
void ShowAboutBox(QWidget *owner);
