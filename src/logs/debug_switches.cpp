#include "debug_switches.h"

#include "platform/forms/menu_item.h"
#include "settings/registry_values.h"
#include "shell/shared_state.h"

void ShowDebugSwitch(MenuItem* item, const QString& valueName)
{
    DebugValue = ReadRegValue(valueName);
    item->SetChecked(DebugValue == QLatin1String("True"));
}

void FlipDebugSwitch(MenuItem* item, const QStringList& valueNames)
{
    const bool on = !item->Checked();
    item->SetChecked(on);
    for (const QString& name : valueNames)
        WriteRegValue(name, on ? QStringLiteral("True") : QStringLiteral("False"));
}
