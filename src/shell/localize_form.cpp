#include "localize_form.h"

#include "catalogue.h"
#include "platform/forms/control.h"
#include "platform/forms/form.h"
#include "platform/forms/tree_view.h"
#include "platform/numeric.h"
#include "platform/runtime_error.h"
#include "shared_state.h"
#include "string_library.h"

#include <QFont>
#include <QFontDatabase>

namespace {

const QString DialogFont = QStringLiteral("MS Shell Dlg");

// The one face every control asks for; the platform maps it to its own UI font.
void substituteDialogFont()
{
    static const bool done = [] {
        QFont::insertSubstitution(DialogFont, QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
        return true;
    }();
    Q_UNUSED(done);
}

// The lookup with a text for an id, as it converts: a text that is no number (empty, "CLEAR",
// an id already replaced by its text) fails, and MsgText keeps what it held.
void loadTextOf(const QString& idText)
{
    if (!Numeric::isNumeric(idText))
        return;
    try {
        LoadMsgText(Numeric::toInt32(idText));
    } catch (const RuntimeError&) { }
}

// Leading digits above 0 mark a catalogue id; "CLEAR" and "" count as 0.
bool startsWithId(const QString& text)
{
    try {
        return Numeric::val(text) > 0;
    } catch (const RuntimeError&) {
        return false;
    }
}

void localizeNodes(TreeView* tree)
{
    for (QTreeWidgetItem* node : tree->Nodes()) {
        QFont font = node->font(0);
        font.setFamily(DialogFont);
        node->setFont(0, font);
        loadTextOf(TreeView::NodeTag(node));
        node->setText(0, MsgText);
    }
}

void localizeControl(Control* control)
{
    control->SetFontName(DialogFont);
    MsgText = QString(Catalogue::BufferLength, QLatin1Char(' '));
    const QString type = control->TypeName();
    if (type == QLatin1String("Label")) {
        loadTextOf(control->Tag());
        control->SetCaption(MsgText);
    } else if (type == QLatin1String("Menu")) {
        loadTextOf(control->Caption());
        control->SetCaption(MsgText);
    } else if (type == QLatin1String("TreeView")) {
        if (auto* tree = dynamic_cast<TreeView*>(control))
            localizeNodes(tree);
    } else if (type == QLatin1String("OptionButton")) {
        // keeps its design-time caption: the names of products, the same in every language
    } else {
        // controls without a caption ignore the new one
        if (startsWithId(control->Tag())) {
            loadTextOf(control->Tag());
            control->SetCaption(MsgText);
        }
        if (startsWithId(control->ToolTipText())) {
            loadTextOf(control->ToolTipText());
            control->SetToolTipText(MsgText);
        }
    }
}

} // namespace

void LocalizeForm(Form* form)
{
    if (!form)
        return;
    substituteDialogFont();
    if (!ResourceLibrary)
        StringLibrary::search();
    // an empty Tag gives whatever MsgText held
    loadTextOf(form->Tag());
    form->SetCaption(MsgText);
    const QList<Control*> controls = form->Controls();
    for (Control* control : controls)
        localizeControl(control);
}
