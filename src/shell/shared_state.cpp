#include "shared_state.h"

QString MsgText;
QString MsgTitle;
qint32 LastStringLength = 0;
