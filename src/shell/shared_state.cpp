#include "shared_state.h"

QString BinDir;
QString CurrentPage;
QString SelectedNodeKey;
QTranslator* ResourceLibrary = nullptr;
qint32 LastStringLength = 0;
QString MsgText;
QString MsgTitle;

TextTable ServerTable;
qint16 ServerCount = 0;
ServerRecordBuffer ServerRecord;
QString ServerFilePath;
QString ServerListOrigin;

TextTable AppGroupTable;
qint16 AppGroupCount = 0;
AppGroupRecordBuffer AppGroupRecord;
TextTable TransGroupTable;
qint16 TransGroupCount = 0;
TransGroupRecordBuffer TransGroupRecord;

QString DebugValue;
QString DbInstance;
