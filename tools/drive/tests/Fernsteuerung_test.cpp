#include "tools/drive/Fernsteuerung.h"
