#pragma once

#include "addresses/frm_address.h"
#include "desktop/address_field_view.h"
#include "desktop/window_views.h"

#include <array>

class ImportPanelView;
class NameListView;
class QAction;
class QLabel;
class QMenu;
class QMenuBar;
class QPushButton;
class QScrollArea;
class QStackedWidget;

/// The address window: the names at the left, the fields of the record beside them; the import's panel takes
/// their place while a list is chosen.
class FrmAddressView : public WindowView {
    Q_OBJECT
public:
    FrmAddressView(Program& program, frmAddress& window, QWidget* over, std::function<void()> afterEvent);
    void Follow() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void BuildMenus();
    void ConnectFields();
    [[nodiscard]] QWidget* Names();
    [[nodiscard]] QWidget* Fields();
    [[nodiscard]] QWidget* RunPanel();
    [[nodiscard]] QPushButton* Button(QWidget* parent, const char* name, const CommandButton& record,
                                      void (frmAddress::*click)(Program&));
    void FollowMenus();
    void FollowFields();
    void FollowPanels();
    void FollowFocus();

    frmAddress& address_;
    AddressFieldCalls calls_;
    QMenuBar* bar_ = nullptr;
    std::array<QAction*, address_menu::kCount> actions_{};
    QScrollArea* scroll_ = nullptr;
    QStackedWidget* stack_ = nullptr;
    ImportPanelView* import_ = nullptr;
    QWidget* names_ = nullptr;
    NameListView* list_ = nullptr;
    QWidget* runPanel_ = nullptr;
    QLabel* progress_ = nullptr;
    std::array<QLabel*, kAddressFieldCount + 1> captions_{};
    std::array<AddressLineView*, kAddressFieldCount - 1> lines_{};
    AddressNotesView* notes_ = nullptr;
    QPushButton* save_ = nullptr;
    QPushButton* exit_ = nullptr;
    QPushButton* saveBatch_ = nullptr;
    int frontCalls_ = 0;
    bool importShown_ = false;
};
