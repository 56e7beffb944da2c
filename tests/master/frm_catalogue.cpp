// The small registers and their pickers, played by keys on the real windows.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include "app/form_pickers.h"
#include "master/buildings/form_building_search.h"
#include "master/catalogue/frmGasUtil.h"
#include "master/catalogue/frmSearchSize.h"
#include "master/catalogue/frmVolume.h"
#include "master/customers/frmSearchClient.h"
#include "master/partners/frmPostCode.h"
#include "master/partners/frmRefillState.h"
#include "master/partners/frmResponse.h"
#include "tests/answers.h"
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "tests/ui/modal.h"
#include "ui/forms/picker_dialog.h"

namespace {

struct CatalogueForms : testing::Test, tests::TestPc {
  CatalogueForms() {
    idle.pickers.place = PostCodeChoice{"403-010", "인천 부평구 부평동", "1~99"};
    openBooks();
    fill(
        "LPG(LPGName, Size, LPGPurchase, LPGSelling, CANPurchase, CANSelling, LPGStock, CANTotalHold, "
        "CANLoan, CANFull, CANEmpty)",
        {"'LPG', '20', 30000, 38000, 25000, 28000, 2100, 130, 20, 80, 30",
         "'LPG', '50', 72000, 90000, 45000, 50000, 3500, 75, 5, 40, 30",
         "'부탄', '13', 21000, 27000, 20000, 23000, -26, 12, 2, 4, 6"});
    fill("Util(Name, Size, SizeSize, UtilPurchase, UtilSelling, UtilStock)",
         {"'밸브', '15A', '개', 1200, 2000, 48", "'고압호스', '3m', '개', 4500, 8000, 12"});
    fill("Response(Name, Tel, HP, AppDate, Address, Memo)",
         {"'김배달', '031-234-5678', '010-1234-5678', '2019-03-02', '경기 고양시 화정동 12', ''",
          "'박기사', '031-234-9999', '010-9876-5432', '2021-07-01', '인천 부평구 부평동 3', '야간 배달'"});
    fill("RefillState(Company, User, BusCode, Tel, Address, Fax, PostCode, GasInit, UtilInit, Code)",
         {"'한강충전소', '이한강', '123-45-67890', '02-345-6789', '서울 중구 충무로 1', '02-345-6780', "
          "'100-011', 1250000, 0, '0001'"});
    fill("Bank(BName, BNumber, BUser)", {"'국민', '123-45-678', '해온가스'"});
    tests::insertRows(
        session.wsMain.OpenDatabase(session.DbPath + "dbPost.mdb"), "Post(ZIPCODE, SIDO, GUGUN, DONG, BUNJI)",
        {"'402-010', '인천', '남구', '도화동', Null", "'403-010', '인천', '부평구', '부평동', '1~99'"});
  }
  void fill(const QString& into, const QStringList& rows) { tests::insertRows(session.dbBasic, into, rows); }
  int run(const QString& sql) { return session.dbBasic.Execute(sql); }
  QString answer(const QString& sql) { return tests::rowsOf(session.dbBasic, sql); }
  static QLineEdit* box(const QWidget& form, const char* name) { return tests::part<QLineEdit>(form, name); }
  static QString label(const QWidget& form, const char* name) {
    return tests::part<QLabel>(form, name)->text();
  }
  /** In front, as large as its contents ask. */
  static void show(QWidget& form, const QString& picture) {
    form.resize(form.sizeHint());
    tests::show(form);
    tests::grab(form, picture);
  }
  tests::IdleContext idle{session};
  FormPickers windows{session};
};

TEST_F(CatalogueForms, NewGasIsEnteredByKeysAlone) {
  frmGasUtil form(idle.context);
  show(form, "frmGasUtil");
  EXPECT_TRUE(box(form, "TxtLPGSize")->isReadOnly());
  EXPECT_EQ(box(form, "TxtCANLoan")->text(), "20");
  EXPECT_EQ(label(form, "LblCANTotalHold"), "130");

  tests::press(form, "BtnNew");
  EXPECT_EQ(QApplication::focusWidget(), box(form, "TxtLPGName"));
  EXPECT_EQ(label(form, "PnlHelp"), "가스명을 입력합니다. LPG는 그냥 엔터를 누르십시오");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(box(form, "TxtLPGName")->text(), "LPG");
  tests::type("10x");
  EXPECT_EQ(box(form, "TxtLPGSize")->text(), "10");
  for (const char* figure : {"", "15000", "19000", "18000", "20000", "6", "3", "1"}) tests::enter(figure);
  EXPECT_EQ(label(form, "LblCANTotalHold"), "10");
  tests::enter("60");
  EXPECT_EQ(tests::focused(), "BtnSave");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(answer("Select CANTotalHold From LPG Where Size = '10' And LPGName = 'LPG'"), "10");
  EXPECT_EQ(form.page()->rules().list().text(4, 12), "90000");

  // The Delete key asks about the line under the cursor; F10 about the page in front.
  form.grid()->setFocus();
  EXPECT_EQ(label(form, "PnlHelp"), "자료의 삭제는 Delete키로 합니다");
  prompts.expect("선택된 LPG/용기에 대한 자료를 삭제하시겠습니까?", false);
  tests::key(Qt::Key_Delete);
  EXPECT_FALSE(form.findChild<QPushButton*>("BtnDel")->isVisible());
  prompts.expect("가스/용기 현황을 출력하시겠습니까?", false);
  tests::key(Qt::Key_F10);
  form.findChild<QTabWidget*>("TabGasUtil")->setCurrentIndex(1);
  form.grid()->setFocus();
  tests::grab(form, "frmGasUtil_시설자재");
  prompts.expect("시설/자재 현황을 출력하시겠습니까?", false);
  tests::key(Qt::Key_F10);
  prompts.expect("선택된 자료를 삭제하시겠습니까?");
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(answer("Select Count(*) From Util"), "1");
}

TEST_F(CatalogueForms, FixedRegulatorKeepsItsSizeBoxShut) {
  run("Insert Into Volume(Size, Name, Unit) Values('R8', '특수', 1500)");
  frmVolume form(idle.context);
  show(form, "frmVolume");
  EXPECT_TRUE(box(form, "TxtSize")->isReadOnly());
  prompts.expect("하늘색 부분의 7개의 등록사항은 삭제할 수 없습니다!");
  tests::key(Qt::Key_Delete);
  form.grid()->setActiveCell(8, 1);
  EXPECT_FALSE(box(form, "TxtSize")->isReadOnly());
  EXPECT_EQ(box(form, "TxtUnit")->text(), "1,500");
  tests::press(form, "BtnNew");
  EXPECT_EQ(box(form, "TxtUnit")->text(), "");
  tests::type("R9");
  prompts.expect("KG당 단가는 필수입력사항입니다!");
  tests::press(form, "BtnSave");
  EXPECT_EQ(QApplication::focusWidget(), box(form, "TxtUnit"));
  prompts.expect("저장하지 않고 버리시겠습니까?", false);
  tests::key(Qt::Key_Escape);
  EXPECT_EQ(box(form, "TxtSize")->text(), "R9");
  prompts.expect("저장하지 않고 버리시겠습니까?");
  tests::key(Qt::Key_Escape);  // back to the list's line
  EXPECT_EQ(box(form, "TxtSize")->text(), "R8");
}

TEST_F(CatalogueForms, PostcodeIsLookedUpByWhatWasTyped) {
  frmRefillState form(idle.context);
  show(form, "frmRefillState");
  EXPECT_EQ(box(form, "TxtCompany")->text(), "한강충전소");
  box(form, "TxtPostCode")->setFocus();
  tests::key(Qt::Key_Return);  // untouched: just moves on
  EXPECT_TRUE(idle.pickers.asked.isEmpty());
  EXPECT_EQ(QApplication::focusWidget(), box(form, "TxtAddress"));
  Form::focus(box(form, "TxtPostCode"));
  tests::compose({"ㅂ", "부"}, "부평");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(idle.pickers.asked, QStringList{"부평"});
  EXPECT_EQ(box(form, "TxtPostCode")->text(), "403-010");
  EXPECT_EQ(box(form, "TxtAddress")->text(), "인천 부평구 부평동");
  EXPECT_EQ(QApplication::focusWidget(), box(form, "TxtAddress"));
  tests::press(form, "BtnSave");
  EXPECT_EQ(answer("Select PostCode From RefillState"), "403-010");

  frmResponse staff(idle.context);
  show(staff, "frmResponse");
  EXPECT_EQ(box(staff, "TxtAppDate")->text(), "2019-03-02");
}

TEST_F(CatalogueForms, GoodsAreTakenByEnterAndLeftByEsc) {
  tests::whenModal<PickerDialog>([](PickerDialog& dialog) {
    tests::grab(dialog, "frmSearchSize");
    EXPECT_EQ(dialog.windowTitle(), "판매상품조회");
    tests::keys({Qt::Key_Down, Qt::Key_Return});
  });
  const auto taken = frmSearchSize(idle.context, "3", TradeSide::Sale, nullptr);
  ASSERT_TRUE(taken);
  EXPECT_EQ(taken->size, "50");
  EXPECT_EQ(taken->price, 140000);

  tests::whenModal<PickerDialog>(
      [](PickerDialog& dialog) { dialog.findChild<QPushButton*>("btnNew")->click(); });
  EXPECT_FALSE(frmSearchSize(idle.context, "1", TradeSide::Purchase, nullptr));
  EXPECT_TRUE(idle.commands.asked.isEmpty());  // not before the handler that asked has ended
  QApplication::processEvents();
  EXPECT_EQ(idle.commands.asked, QStringList{"frmGasUtil"});
}

TEST_F(CatalogueForms, ShortListsHandOverTheLineUnderTheCursor) {
  const auto takeFirst = [](PickerDialog& dialog) {
    tests::grab(dialog, dialog.objectName());
    tests::key(Qt::Key_Return);
  };
  tests::whenModal<PickerDialog>(takeFirst);
  EXPECT_EQ(windows.searchResponse(), "김배달");
  tests::whenModal<PickerDialog>(takeFirst);
  EXPECT_EQ(windows.searchRefill(), "한강충전소");
  tests::whenModal<PickerDialog>(takeFirst);
  const auto account = windows.searchBank();
  ASSERT_TRUE(account);
  EXPECT_EQ(account->name + account->number + account->user, "국민123-45-678해온가스");
  run("Update Volume Set Unit = '1450' Where Code = 1");
  tests::whenModal<PickerDialog>(takeFirst);
  const auto regulator = windows.searchVolume();
  ASSERT_TRUE(regulator);
  EXPECT_EQ(regulator->size, answer("Select Size From Volume Where Code = 1"));
  EXPECT_EQ(regulator->unit, 1450);

  run("Delete * From Response");
  tests::whenModal<PickerDialog>([](PickerDialog&) {
    tests::key(Qt::Key_Return);  // an empty list gives nothing to take
    tests::key(Qt::Key_Escape);
  });
  EXPECT_FALSE(windows.searchResponse());
}

TEST_F(CatalogueForms, EveryPickerIsWorkedByKeysAlone) {
  fill("APT(Name, Dong, Height, Gubun)", {"'한빛', '101', 5, True", "'한빛', '102', 5, True"});
  fill("Client(Name, Tel, HouseStyle, PayWay)",
       {"'가람', '053-111-1234', 0, 1", "'나래', '053-111-1234', 0, 1"});
  BuildingSearch buildings(session, HouseStyle::Apartment);
  ASSERT_TRUE(buildings.loadBuildings() && buildings.loadBlocks("한빛"));
  const auto client = [this] {
    return frmSearchClient(session, "1234", ClientSearchMode::All, false, {}, nullptr).choose().has_value();
  };
  const std::pair<const char*, std::function<bool()>> pickers[] = {
      {"frmSearchSize",
       [&] { return frmSearchSize(idle.context, "1", TradeSide::Sale, nullptr).has_value(); }},
      {"frmSearchVolume", [&] { return windows.searchVolume().has_value(); }},
      {"frmSearchResponse", [&] { return windows.searchResponse().has_value(); }},
      {"frmSearchRefill", [&] { return windows.searchRefill().has_value(); }},
      {"frmSearchBank", [&] { return windows.searchBank().has_value(); }},
      {"frmPostCode", [&] { return frmPostCode(session, "도화", nullptr).has_value(); }},
      {"frmBDName", [&] { return frmBDName(session, buildings, nullptr) > 0; }},
      {"frmAPTAddress", [&] { return frmAPTAddress(session, buildings, nullptr) > 0; }},
      {"frmSearchClient", client},
  };
  for (const auto& [name, run] : pickers) {
    SCOPED_TRACE(name);
    const auto inList = [](PickerDialog& dialog) {
      return dialog.grid()->isAncestorOf(QApplication::focusWidget());
    };
    tests::whenModal<PickerDialog>([&](PickerDialog& dialog) {
      EXPECT_EQ(dialog.objectName(), QString::fromLatin1(name));
      EXPECT_TRUE(inList(dialog)) << "the list has the focus";
      EXPECT_EQ(dialog.grid()->activeRow(), 1);
      QMap<QString, QString> letters;
      for (const auto* const button : dialog.findChildren<QPushButton*>()) {
        const QString letter = QKeySequence::mnemonic(button->text()).toString();
        EXPECT_FALSE(letter.isEmpty() || letters.contains(letter)) << button->text().toStdString();
        letters[letter] = button->text();
      }
      if (dialog.findBox()) {
        tests::key(Qt::Key_Up);
        EXPECT_TRUE(dialog.findBox()->hasFocus()) << "up from the first line";
        tests::key(Qt::Key_Down);
        EXPECT_TRUE(inList(dialog));
        tests::key(Qt::Key_Tab);
        EXPECT_FALSE(inList(dialog)) << "Tab leaves the list";
        tests::key(Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_TRUE(inList(dialog));
      }
      tests::key(Qt::Key_Return);
    });
    EXPECT_TRUE(run()) << "Enter takes";
    tests::whenModal<PickerDialog>([&](PickerDialog&) { tests::key(Qt::Key_Escape); });
    EXPECT_FALSE(run()) << "Esc leaves";
  }
}

TEST_F(CatalogueForms, PostcodeWindowSearchesAtOnceForItsCaller) {
  prompts.expect("찾고자 하는 우편번호나 읍/면/동이 없습니다!");
  tests::whenModal<PickerDialog>([this](PickerDialog& dialog) {
    EXPECT_EQ(dialog.findBox()->text(), "");  // nothing found: emptied, and the cursor is there again
    EXPECT_EQ(QApplication::focusWidget(), dialog.findBox());
    tests::compose({"ㅍ", "펴"}, "평");
    tests::key(Qt::Key_Return);
    tests::grab(dialog, "frmPostCode");
    EXPECT_EQ(QApplication::focusWidget()->window(), &dialog);
    tests::key(Qt::Key_Return);
  });
  const auto place = frmPostCode(session, "없는동", nullptr);
  ASSERT_TRUE(place);
  EXPECT_EQ(place->zipCode, "403-010");
  EXPECT_EQ(place->lots, "1~99");
}

}  // namespace
