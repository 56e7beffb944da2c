// The small registers and their pickers, played by keys on the real windows.
#include <gtest/gtest.h>

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
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "tests/ui/modal.h"
#include "ui/forms/picker_dialog.h"

using namespace Qt::StringLiterals;

namespace {

struct CatalogueForms : testing::Test {
  void SetUp() override {
    pickers.place = PostCodeChoice{u"403-010"_s, u"인천 부평구 부평동"_s, u"1~99"_s};
    pc.openBooks();
    for (const QString& row : {u"'LPG', '20', 30000, 38000, 25000, 28000, 2100, 130, 20, 80, 30"_s,
                               u"'LPG', '50', 72000, 90000, 45000, 50000, 3500, 75, 5, 40, 30"_s,
                               u"'부탄', '13', 21000, 27000, 20000, 23000, -26, 12, 2, 4, 6"_s})
      run(u"Insert Into LPG(LPGName, Size, LPGPurchase, LPGSelling, CANPurchase, CANSelling, LPGStock, "
          u"CANTotalHold, CANLoan, CANFull, CANEmpty) Values("_s +
          row + u")"_s);
    for (const QString& row :
         {u"'밸브', '15A', '개', 1200, 2000, 48"_s, u"'고압호스', '3m', '개', 4500, 8000, 12"_s})
      run(u"Insert into Util(Name, Size, SizeSize, UtilPurchase, UtilSelling, UtilStock) Values("_s + row +
          u")"_s);
    for (const QString& row :
         {u"'김배달', '031-234-5678', '010-1234-5678', '2019-03-02', '경기 고양시 화정동 12', ''"_s,
          u"'박기사', '031-234-9999', '010-9876-5432', '2021-07-01', '인천 부평구 부평동 3', '야간 배달'"_s})
      run(u"Insert Into Response(Name, Tel, HP, AppDate, Address, Memo) Values("_s + row + u")"_s);
    run(u"Insert into RefillState(Company, User, BusCode, Tel, Address, Fax, PostCode, GasInit, UtilInit, "
        u"Code) "
        u"Values('한강충전소', '이한강', '123-45-67890', '02-345-6789', '서울 중구 충무로 1', '02-345-6780', "
        u"'100-011', "
        u"1250000, 0, '0001')"_s);
  }
  int run(const QString& sql) { return pc.session.dbBasic.Execute(sql); }
  QString answer(const QString& sql) { return pc.session.dbBasic.OpenRecordset(sql)[0].toText(); }
  void press(QWidget& form, const char* button) {
    auto* const found = form.findChild<QPushButton*>(QString::fromUtf8(button));
    ASSERT_TRUE(found) << button;
    found->click();
  }
  QLineEdit* box(QWidget& form, const char* name) {
    return form.findChild<QLineEdit*>(QString::fromUtf8(name));
  }
  tests::TestPc pc;
  tests::IdlePickers pickers;
  FormPickers windows{pc.session};
  tests::IdleCommands commands;
  tests::IdleCalls calls;
  FormContext context{pc.session, pickers, commands, calls};
};

TEST_F(CatalogueForms, NewGasIsEnteredByKeysAlone) {
  frmGasUtil form(context);
  form.resize(form.sizeHint());
  tests::show(form);
  tests::grab(form, u"frmGasUtil"_s);
  EXPECT_TRUE(box(form, "TxtLPGSize")->isReadOnly());
  EXPECT_EQ(box(form, "TxtCANLoan")->text(), u"20"_s);
  EXPECT_EQ(form.findChild<QLabel*>(u"LblCANTotalHold"_s)->text(), u"130"_s);

  press(form, "BtnNew");
  EXPECT_EQ(QApplication::focusWidget(), box(form, "TxtLPGName"));
  EXPECT_EQ(form.findChild<QLabel*>(u"PnlHelp"_s)->text(),
            u"가스명을 입력합니다. LPG는 그냥 엔터를 누르십시오"_s);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(box(form, "TxtLPGName")->text(), u"LPG"_s);
  tests::type(u"10x"_s);
  EXPECT_EQ(box(form, "TxtLPGSize")->text(), u"10"_s);
  for (const QString& figure :
       {u""_s, u"15000"_s, u"19000"_s, u"18000"_s, u"20000"_s, u"6"_s, u"3"_s, u"1"_s}) {
    tests::enter(figure);
  }
  EXPECT_EQ(form.findChild<QLabel*>(u"LblCANTotalHold"_s)->text(), u"10"_s);
  tests::enter(u"60"_s);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), u"BtnSave"_s);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(answer(u"Select CANTotalHold From LPG Where Size = '10' And LPGName = 'LPG'"_s), u"10"_s);
  EXPECT_EQ(form.page()->rules().list().text(4, 12), u"90000"_s);

  // The Delete key asks about the line under the cursor; F10 about the page in front.
  form.grid()->setFocus();
  EXPECT_EQ(form.findChild<QLabel*>(u"PnlHelp"_s)->text(), u"자료의 삭제는 Delete키로 합니다"_s);
  pc.prompts.expect(u"선택된 LPG/용기에 대한 자료를 삭제하시겠습니까?"_s, false);
  tests::key(Qt::Key_Delete);
  EXPECT_FALSE(form.findChild<QPushButton*>(u"BtnDel"_s)->isVisible());
  pc.prompts.expect(u"가스/용기 현황을 출력하시겠습니까?"_s, false);
  tests::key(Qt::Key_F10);
  form.findChild<QTabWidget*>(u"TabGasUtil"_s)->setCurrentIndex(1);
  form.grid()->setFocus();
  tests::grab(form, u"frmGasUtil_시설자재"_s);
  pc.prompts.expect(u"시설/자재 현황을 출력하시겠습니까?"_s, false);
  tests::key(Qt::Key_F10);
  pc.prompts.expect(u"선택된 자료를 삭제하시겠습니까?"_s);
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(answer(u"Select Count(*) From Util"_s), u"1"_s);
}

TEST_F(CatalogueForms, FixedRegulatorKeepsItsSizeBoxShut) {
  run(u"Insert Into Volume(Size, Name, Unit) Values('R8', '특수', 1500)"_s);
  frmVolume form(context);
  form.resize(form.sizeHint());
  tests::show(form);
  tests::grab(form, u"frmVolume"_s);
  EXPECT_TRUE(box(form, "TxtSize")->isReadOnly());
  pc.prompts.expect(u"하늘색 부분의 7개의 등록사항은 삭제할 수 없습니다!"_s);
  tests::key(Qt::Key_Delete);
  form.grid()->setActiveCell(8, 1);
  EXPECT_FALSE(box(form, "TxtSize")->isReadOnly());
  EXPECT_EQ(box(form, "TxtUnit")->text(), u"1,500"_s);
  press(form, "BtnNew");
  EXPECT_EQ(box(form, "TxtUnit")->text(), u""_s);
  tests::type(u"R9"_s);
  pc.prompts.expect(u"KG당 단가는 필수입력사항입니다!"_s);
  press(form, "BtnSave");
  EXPECT_EQ(QApplication::focusWidget(), box(form, "TxtUnit"));
  pc.prompts.expect(u"저장하지 않고 버리시겠습니까?"_s, false);
  tests::key(Qt::Key_Escape);
  EXPECT_EQ(box(form, "TxtSize")->text(), u"R9"_s);
  pc.prompts.expect(u"저장하지 않고 버리시겠습니까?"_s);
  tests::key(Qt::Key_Escape);  // back to the list's line
  EXPECT_EQ(box(form, "TxtSize")->text(), u"R8"_s);
}

TEST_F(CatalogueForms, PostcodeIsLookedUpByWhatWasTyped) {
  frmRefillState form(context);
  form.resize(form.sizeHint());
  tests::show(form);
  tests::grab(form, u"frmRefillState"_s);
  EXPECT_EQ(box(form, "TxtCompany")->text(), u"한강충전소"_s);
  box(form, "TxtPostCode")->setFocus();
  tests::key(Qt::Key_Return);  // untouched: just moves on
  EXPECT_TRUE(pickers.asked.isEmpty());
  EXPECT_EQ(QApplication::focusWidget(), box(form, "TxtAddress"));
  Form::focus(box(form, "TxtPostCode"));
  tests::compose({u"ㅂ"_s, u"부"_s}, u"부평"_s);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(pickers.asked, QStringList{u"부평"_s});
  EXPECT_EQ(box(form, "TxtPostCode")->text(), u"403-010"_s);
  EXPECT_EQ(box(form, "TxtAddress")->text(), u"인천 부평구 부평동"_s);
  EXPECT_EQ(QApplication::focusWidget(), box(form, "TxtAddress"));
  press(form, "BtnSave");
  EXPECT_EQ(answer(u"Select PostCode From RefillState"_s), u"403-010"_s);

  frmResponse staff(context);
  staff.resize(staff.sizeHint());
  tests::show(staff);
  tests::grab(staff, u"frmResponse"_s);
  EXPECT_EQ(box(staff, "TxtAppDate")->text(), u"2019-03-02"_s);
}

TEST_F(CatalogueForms, GoodsAreTakenByEnterAndLeftByEsc) {
  tests::whenModal<PickerDialog>([](PickerDialog& dialog) {
    tests::grab(dialog, u"frmSearchSize"_s);
    EXPECT_EQ(dialog.windowTitle(), u"판매상품조회"_s);
    tests::key(Qt::Key_Down);
    tests::key(Qt::Key_Return);
  });
  const auto taken = frmSearchSize(context, u"3"_s, TradeSide::Sale, nullptr);
  ASSERT_TRUE(taken);
  EXPECT_EQ(taken->size, u"50"_s);
  EXPECT_EQ(taken->price, 140000);

  tests::whenModal<PickerDialog>([](PickerDialog&) { tests::key(Qt::Key_Escape); });
  EXPECT_FALSE(windows.searchResponse());
  tests::whenModal<PickerDialog>(
      [](PickerDialog& dialog) { dialog.findChild<QPushButton*>(u"btnNew"_s)->click(); });
  EXPECT_FALSE(frmSearchSize(context, u"1"_s, TradeSide::Purchase, nullptr));
  EXPECT_TRUE(commands.asked.isEmpty());  // not before the handler that asked has ended
  QApplication::processEvents();
  EXPECT_EQ(commands.asked, QStringList{u"frmGasUtil"_s});
}

TEST_F(CatalogueForms, ShortListsHandOverTheLineUnderTheCursor) {
  run(u"Insert Into Bank(BName, BNumber, BUser) Values('국민', '123-45-678', '해온가스')"_s);
  const auto takeFirst = [](PickerDialog& dialog) {
    tests::grab(dialog, dialog.objectName());
    tests::key(Qt::Key_Return);
  };
  tests::whenModal<PickerDialog>(takeFirst);
  EXPECT_EQ(windows.searchResponse(), u"김배달"_s);
  tests::whenModal<PickerDialog>(takeFirst);
  EXPECT_EQ(windows.searchRefill(), u"한강충전소"_s);
  tests::whenModal<PickerDialog>(takeFirst);
  const auto account = windows.searchBank();
  ASSERT_TRUE(account);
  EXPECT_EQ(account->name + account->number + account->user, u"국민123-45-678해온가스"_s);
  run(u"Update Volume Set Unit = '1450' Where Code = 1"_s);
  tests::whenModal<PickerDialog>(takeFirst);
  const auto regulator = windows.searchVolume();
  ASSERT_TRUE(regulator);
  EXPECT_EQ(regulator->size, answer(u"Select Size From Volume Where Code = 1"_s));
  EXPECT_EQ(regulator->unit, 1450);

  run(u"Delete * From Response"_s);
  tests::whenModal<PickerDialog>([](PickerDialog&) {
    tests::key(Qt::Key_Return);  // an empty list gives nothing to take
    tests::key(Qt::Key_Escape);
  });
  EXPECT_FALSE(windows.searchResponse());
}

TEST_F(CatalogueForms, EveryPickerIsWorkedByKeysAlone) {
  run(u"Insert Into Bank(BName, BNumber, BUser) Values('국민', '123-45-678', '해온가스')"_s);
  for (const QString& dong : {u"101"_s, u"102"_s})
    run(u"Insert Into APT(Name, Dong, Height, Gubun) Values('한빛', '"_s + dong + u"', 5, True)"_s);
  for (const QString& name : {u"가람"_s, u"나래"_s})
    run(u"Insert Into Client(Name, Tel, HouseStyle, PayWay) Values('"_s + name +
        u"', '053-111-1234', 0, 1)"_s);
  const jet::Database post = pc.session.wsMain.OpenDatabase(pc.session.DbPath + u"dbPost.mdb"_s);
  post.Execute(u"Insert Into Post(ZIPCODE, SIDO, GUGUN, DONG) Values('402-010', '인천', '남구', '도화동')"_s);
  BuildingSearch buildings(pc.session, HouseStyle::Apartment);
  ASSERT_TRUE(buildings.loadBuildings() && buildings.loadBlocks(u"한빛"_s));
  const auto client = [this] {
    return frmSearchClient(pc.session, u"1234"_s, ClientSearchMode::All, false, {}, nullptr)
        .choose()
        .has_value();
  };
  const std::pair<const char*, std::function<bool()>> pickers[] = {
      {"frmSearchSize", [&] { return frmSearchSize(context, u"1"_s, TradeSide::Sale, nullptr).has_value(); }},
      {"frmSearchVolume", [&] { return windows.searchVolume().has_value(); }},
      {"frmSearchResponse", [&] { return windows.searchResponse().has_value(); }},
      {"frmSearchRefill", [&] { return windows.searchRefill().has_value(); }},
      {"frmSearchBank", [&] { return windows.searchBank().has_value(); }},
      {"frmPostCode", [&] { return frmPostCode(pc.session, u"도화"_s, nullptr).has_value(); }},
      {"frmBDName", [&] { return frmBDName(pc.session, buildings, nullptr) > 0; }},
      {"frmAPTAddress", [&] { return frmAPTAddress(pc.session, buildings, nullptr) > 0; }},
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
  const jet::Database post = pc.session.wsMain.OpenDatabase(pc.session.DbPath + u"dbPost.mdb"_s);
  for (const QString& row :
       {u"'402-010', '인천', '남구', '도화동', Null"_s, u"'403-010', '인천', '부평구', '부평동', '1~99'"_s})
    post.Execute(u"Insert Into Post(ZIPCODE, SIDO, GUGUN, DONG, BUNJI) Values("_s + row + u")"_s);

  pc.prompts.expect(u"찾고자 하는 우편번호나 읍/면/동이 없습니다!"_s);
  tests::whenModal<PickerDialog>([this](PickerDialog& dialog) {
    EXPECT_EQ(dialog.findBox()->text(), u""_s);  // nothing found: emptied, and the cursor is there again
    EXPECT_EQ(QApplication::focusWidget(), dialog.findBox());
    tests::compose({u"ㅍ"_s, u"펴"_s}, u"평"_s);
    tests::key(Qt::Key_Return);
    tests::grab(dialog, u"frmPostCode"_s);
    EXPECT_EQ(QApplication::focusWidget()->window(), &dialog);
    tests::key(Qt::Key_Return);
  });
  const auto place = frmPostCode(pc.session, u"없는동"_s, nullptr);
  ASSERT_TRUE(place);
  EXPECT_EQ(place->zipCode, u"403-010"_s);
  EXPECT_EQ(place->lots, u"1~99"_s);
}

}  // namespace
