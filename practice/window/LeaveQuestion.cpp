#include "window/LeaveQuestion.h"

#include <QMessageBox>
#include <QPushButton>

void LeaveQuestion::ask(QWidget *window, const QString &name, const std::function<void()> &save,
                        const std::function<void()> &leave)
{
    takeBack();
    //: %1 is the name of the open project.
    auto *box = new QMessageBox(QMessageBox::Question, window->window()->windowTitle(),
                                tr("Save the changes in “%1”?").arg(name), QMessageBox::NoButton, window);
    box->setObjectName(QStringLiteral("leaveMessageBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(tr("What you have changed since you saved it last is lost otherwise."));
    //: A button: save the project, then leave it.
    QPushButton *const yes = box->addButton(tr("&Save"), QMessageBox::AcceptRole);
    //: A button: leave the project without saving it.
    QPushButton *const no = box->addButton(tr("&Don't save"), QMessageBox::DestructiveRole);
    //: A button: go on with the project as it is.
    QPushButton *const stay = box->addButton(tr("Cancel"), QMessageBox::RejectRole);
    yes->setObjectName(QStringLiteral("save"));
    no->setObjectName(QStringLiteral("leave"));
    stay->setObjectName(QStringLiteral("cancel"));
    box->setDefaultButton(yes);
    box->setEscapeButton(stay);
    QObject::connect(box, &QDialog::finished, box, [box, yes, no, save, leave] {
        if (box->clickedButton() == yes) {
            save();
        } else if (box->clickedButton() == no) {
            leave();
        }
    });
    m_box = box;
    box->open();
}

void LeaveQuestion::takeBack()
{
    if (m_box != nullptr) {
        m_box->disconnect();
        m_box->close();
    }
}
