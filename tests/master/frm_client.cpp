// The customer forms, played by keys on the real windows.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "master/customers/frmClient.h"
#include "master/customers/frmNewClient.h"
#include "master/customers/frmSearchClient.h"
#include "tests/idle_context.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "tests/ui/modal.h"

using namespace Qt::StringLiterals;

namespace {

class ClientForms : public ::testing::Test {
 protected:
  void SetUp() override {
    pc.openBooks(QDate(2026, 11, 24));
    pickers.day = u"2026-03-01"_s;
  }

  void addPlain(const QString& name, const QString& tel, const QString& address = {}, int gas = 0,
                const QString& memo = {}) {
    pc.session.dbBasic.Execute(
        "Insert into Client(Name, Tel, Address, GasInit, Memo, AppDate, HouseStyle, PayWay) Values('" + name +
        "', '" + tel + "', '" + address + "', " + QString::number(gas) + ", '" + memo +
        "', '2019-04-02', 0, 1)");
  }
  void fillBooks() {
    const char* streets[] = {"대구 중구 동성로2가 ", "대구 중구 남산동 ", "대구 수성구 범어동 ",
                             "대구 달서구 월성동 "};
    const char* names[] = {"행복식당", "김철수", "대성정육", "이영희",
                           "한우마을", "박민수", "중앙분식", "최지은"};
    for (int i = 0; i < 40; ++i) {
      addPlain(QString::fromUtf8(names[i % 8]) + (i < 8 ? QString() : QString::number(i / 8 + 1)),
               u"053-%1-%2"_s.arg(200 + i * 17).arg(1000 + i * 137),
               QString::fromUtf8(streets[i % 4]) + QString::number(11 + i * 3), i % 3 ? i * 12500 : 0,
               i % 5 ? QString() : "뒷문으로 배달, 개 조심");
    }
    pc.session.dbBasic.Execute(
        "Insert Into APT(Name, Dong, PostCode, Address, Height, Gubun) Values('한빛아파트', '101', "
        "'700-010', "
        "'대구 중구 동인동 1', 15, True)");
    pc.session.dbBasic.Execute(
        "Insert Into APT(Name, Dong, PostCode, Address, Height, Gubun) Values('한빛아파트', '102', "
        "'700-010', "
        "'대구 중구 동인동 2', 15, True)");
    for (int i = 0; i < 24; ++i)
      pc.session.dbBasic.Execute(
          u"Insert into Client(Name, Tel, BDName, Dong, Ho, HouseStyle, PayWay, "
          u"VolumeYesNo, Volume, VolumeUnit, PostCode, Address, GasInit) Values("
          u"'한빛아파트 101동 %1호', '053-421-%2', '한빛아파트', '101', '%1', 1, 2, "
          u"True, '4', 1500, '700-010', '대구 중구 동인동 1', 0)"_s.arg(101 + i / 4 * 100 + i % 4)
              .arg(3000 + i));
  }
  static QWidget* sheet(const frmClient& form) {
    return form.findChild<QTabWidget*>("TabClient")->currentWidget();
  }
  template <class Box = QLineEdit>
  static Box* box(const QWidget* parent, const char* name) {
    return parent->findChild<Box*>(QString::fromUtf8(name));
  }
  static QString focused() {
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
  }
  jet::Recordset ask(const QString& sql) { return pc.session.dbBasic.OpenRecordset(sql); }

  tests::TestPc pc;
  tests::IdlePickers pickers;
  tests::IdleCommands commands;
  tests::IdleCalls calls;
  FormContext context{pc.session, pickers, commands, calls};
};

TEST_F(ClientForms, aMeterCustomerIsEnteredByKeysAlone) {
  frmClient form(context);
  form.resize(1040, 640);
  tests::show(form);
  EXPECT_EQ(focused(), "BtnNew");
  pickers.place = PostCodeChoice{"700-010", "대구 중구 동성로2가", ""};
  pickers.regulator = VolumeChoice{"4", 1500};

  tests::key(Qt::Key_Return);
  ASSERT_EQ(focused(), "TxtName");
  EXPECT_EQ(form.findChild<QLabel*>("PnlHelp")->text(), "고객의 이름이나 상호를 입력합니다");
  tests::compose({"ㄱ", "기", "김"}, "김");
  tests::key(Qt::Key_Return);
  tests::key(Qt::Key_Return);
  ASSERT_EQ(focused(), "TxtTel");
  tests::enter("0531234567");
  EXPECT_EQ(box(sheet(form), "TxtTel")->text(), "053-123-4567");
  tests::key(Qt::Key_Return);
  tests::key(Qt::Key_Return);
  ASSERT_EQ(focused(), "TxtPost");
  tests::enter("700");
  EXPECT_EQ(pickers.asked, QStringList{"700"});
  ASSERT_EQ(focused(), "TxtAddress");
  tests::enter(" 12");
  ASSERT_EQ(focused(), "TxtAppDate");
  EXPECT_EQ(form.findChild<QLabel*>("PnlHelp")->text(), "가입일자를 입력합니다.  달력조회 = F12");
  tests::key(Qt::Key_F12);
  tests::key(Qt::Key_Return);
  tests::key(Qt::Key_Return);
  ASSERT_EQ(focused(), "TxtGasInit");
  tests::enter("12500");
  tests::key(Qt::Key_Return);
  ASSERT_EQ(focused(), "OptCash");
  tests::key(Qt::Key_Right);
  EXPECT_EQ(focused(), "OptJiro");
  tests::key(Qt::Key_Return);
  ASSERT_EQ(focused(), "ChkVolume");
  tests::key(Qt::Key_Space);
  tests::key(Qt::Key_Return);
  ASSERT_EQ(focused(), "TxtPressure");
  tests::key(Qt::Key_Return);
  ASSERT_EQ(focused(), "TxtVolumeUnit");
  for (const char* last : {"TxtSerial", "TxtStatus", "TxtItem", "TxtMemo", "BtnSave"}) {
    tests::key(Qt::Key_Return);
    ASSERT_EQ(focused(), last);
  }
  tests::key(Qt::Key_Return);
  EXPECT_EQ(focused(), "BtnNew") << "ready for the next customer";

  const jet::Recordset row = ask("Select * From Client");
  EXPECT_EQ(row["Name"].toText(), "김");
  EXPECT_EQ(row["Tel"].toText(), "053-123-4567");
  EXPECT_EQ(row["PostCode"].toText() + '|' + row["Address"].toText(), "700-010|대구 중구 동성로2가 12");
  EXPECT_EQ(row["AppDate"].toText(), "2026-03-01");
  EXPECT_EQ(row["GasInit"].toLong(), 12500);
  EXPECT_EQ(row["PayWay"].toLong(), 2);
  EXPECT_EQ(row["Volume"].toText(), "4");
  EXPECT_EQ(row["VolumeUnit"].toLong(), 1500);
  EXPECT_EQ(pc.session.dbYear.OpenRecordset("Select Count(*) As N From Evaporation")["N"].toLong(), 13);
}

TEST_F(ClientForms, aPlainCustomerSkipsTheRegulatorAndAWrongPlaceIsRefused) {
  frmClient form(context);
  tests::show(form);
  box<QPushButton>(&form, "BtnNew")->click();
  QWidget* const page = sheet(form);
  box(page, "TxtPost")->setFocus();
  tests::type("999");
  pc.prompts.expect("등록된 우편번호나 읍/면/동 이름이 아닙니다!");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(focused(), "TxtPost");
  box<QCheckBox>(page, "ChkVolume")->setFocus();
  tests::key(Qt::Key_Return);
  EXPECT_EQ(focused(), "TxtSerial");
  pc.prompts.expect("고객성명/전화번호/주소 중 한가지는");
  box<QPushButton>(&form, "BtnSave")->click();
  EXPECT_EQ(focused(), "TxtName");
}

TEST_F(ClientForms, listRowsFillTheBoxesAndDeleteTakesThemOut) {
  addPlain("가람", "053-111-1111", "중앙로 1");
  addPlain("나래", "053-222-2222", "중앙로 2", 3000);
  frmClient form(context);
  tests::show(form);
  auto* const grid = sheet(form)->findChild<Spread*>();
  grid->setFocus();
  tests::key(Qt::Key_Down);
  EXPECT_EQ(box(sheet(form), "TxtName")->text(), "나래");
  EXPECT_EQ(box(sheet(form), "TxtGasInit")->text(), "3,000");
  EXPECT_TRUE(form.findChild<QLabel*>("LblBottom")->text().endsWith("등록고객수 : 2명"));
  EXPECT_EQ(form.findChild<QLabel*>("PnlHelp")->text(), "고객자료의 삭제는 키보드의 Delete키로 합니다");

  box(sheet(form), "TxtMemo")->setText("계단");
  pc.prompts.expect("위와 같이 고객등록사항을 변경하시겠습니까?");
  box<QPushButton>(&form, "BtnSave")->click();
  EXPECT_EQ(ask("Select Memo From Client Where Name = '나래'")["Memo"].toText(), "계단");

  pc.prompts.expect("이  름 : 나래    전화번호 : 053-222-2222");
  grid->setFocus();
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(ask("Select * From Client").RecordCount(), 1);
  EXPECT_EQ(box(sheet(form), "TxtName")->text(), "가람");
  EXPECT_TRUE(form.findChild<QLabel*>("LblBottom")->text().endsWith("등록고객수 : 1명"));
}

TEST_F(ClientForms, aNameWithAnApostropheEndsInABoxAndTheFormStaysUp) {
  frmClient form(context);
  tests::show(form);
  box<QPushButton>(&form, "BtnNew")->click();
  box(sheet(form), "TxtAddress")->setText("O'Neil");
  pc.prompts.expect("오류");
  box<QPushButton>(&form, "BtnSave")->click();
  EXPECT_EQ(box(sheet(form), "TxtAddress")->text(), "O'Neil");
  EXPECT_EQ(ask("Select * From Client").RecordCount(), 0);
}

TEST_F(ClientForms, theSearchBehindTheSearchNameBringsTheCustomersPage) {
  fillBooks();
  frmClient form(context);
  tests::show(form);
  pickers.client = ClientChoice{41, ""};
  box(sheet(form), "TxtUName")->setFocus();
  tests::key(Qt::Key_F12);
  EXPECT_EQ(form.findChild<QTabWidget*>("TabClient")->currentIndex(), 1);
  EXPECT_EQ(box(sheet(form), "TxtHo")->text(), "101");
  EXPECT_EQ(sheet(form)->findChild<Spread*>()->activeRow(), 1);
  EXPECT_TRUE(sheet(form)->isAncestorOf(box<QPushButton>(&form, "BtnSave"))) << "the buttons come along";
}

TEST_F(ClientForms, aCustomerRegisteredFromTheSearchStandsInTheList) {
  addPlain("가람", "053-111-1111");
  frmClient form(context);
  tests::show(form);
  addPlain("나래", "053-222-2222");
  pickers.client = ClientChoice{2, "나래"};
  box(sheet(form), "TxtUName")->setFocus();
  tests::key(Qt::Key_F12);
  EXPECT_EQ(box(sheet(form), "TxtName")->text(), "나래");
  EXPECT_EQ(sheet(form)->findChild<Spread*>()->activeRow(), 2);
}

TEST_F(ClientForms, theMapButtonWaitsForTheEditor) {
  addPlain("가람", "053-111-1111");
  pc.pc.process.setStarter([](const QString&, const QStringList&, const QString&) { return true; });
  const QString editor = pc.pc.paths.native("C:\\RWGAS\\MapEdit.exe");
  ASSERT_TRUE(QDir().mkpath(QFileInfo(editor).path()));
  ASSERT_TRUE(QFile(editor).open(QIODevice::WriteOnly));
  frmClient form(context);
  tests::show(form);
  auto* const image = box<QPushButton>(&form, "BtnImage");
  image->click();
  EXPECT_FALSE(image->isEnabled());
  pc.pc.settings.SaveSetting("약도", "환경설정", "MapEdit", "1");
  EXPECT_TRUE(QTest::qWaitFor([&] { return image->isEnabled(); }, 3000));
}

// --- the search ---------------------------------------------------------------------------------------------

class ClientSearchForm : public ClientForms {
 protected:
  std::optional<ClientChoice> search(const QString& text, ClientSearchMode mode = ClientSearchMode::All) {
    return frmSearchClient(pc.session, text, mode, false,
                           [this](const QString& searched) {
                             return frmNewClient(pc.session, pickers, searched).enter();
                           })
        .choose();
  }
};

TEST_F(ClientSearchForm, oneMatchComesBackAtOnceAndSeveralAreChosenByEnter) {
  addPlain("가람", "053-111-1234");
  addPlain("나래", "053-222-1234");
  ASSERT_TRUE(search("가람"));
  tests::whenModal<QDialog>([](QDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), "frmSearchClient");
    tests::key(Qt::Key_Down);
    tests::key(Qt::Key_Return);
  });
  const auto chosen = search("1234");
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->name, "나래");
  tests::whenModal<QDialog>([](QDialog&) { tests::key(Qt::Key_Escape); });
  EXPECT_FALSE(search("1234"));
}

TEST_F(ClientSearchForm, composingASyllableDoesNotSearch) {
  addPlain("가람", "053-111-1234");
  addPlain("가람2", "053-222-1234");
  tests::whenModal<QDialog>([](QDialog& dialog) {
    auto* const find = dialog.findChild<QLineEdit*>("TxtFind");
    find->setFocus();
    find->clear();
    tests::compose({"ㄱ", "가", "갈"}, "가");
    tests::compose({"ㄹ", "라"}, "람2");
    EXPECT_EQ(focused(), "TxtFind");
    tests::key(Qt::Key_Return);
  });
  const auto chosen = search("1234");
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->name, "가람2") << "the only one closes the list";
}

TEST_F(ClientSearchForm, anUnknownNumberIsRegisteredOnTheSpotAndChosen) {
  pickers.place = PostCodeChoice{"700-010", "대구 중구", ""};
  pc.prompts.expect("찾고자 하는 고객명/상호/전화번호가 없습니다!\n신규고객등록을 하시겠습니까?");
  tests::whenModal<QDialog>([](QDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), "frmNewClient");
    EXPECT_EQ(box(&dialog, "TxtTel")->text(), "053-123-4567");
    ASSERT_EQ(focused(), "TxtName");
    tests::compose({"ㄱ"}, "가람");
    tests::grab(dialog, "frmNewClient");
    for (int i = 0; i < 20 && focused() != "BtnSave"; ++i) tests::key(Qt::Key_Return);
    ASSERT_EQ(focused(), "BtnSave");
    tests::key(Qt::Key_Return);
  });
  const auto chosen = search("0531234567");
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->name, "가람");
  EXPECT_EQ(ask("Select Tel From Client")["Tel"].toText(), "053-123-4567");
}

TEST_F(ClientSearchForm, theQuickEntryKeepsWhatWasTypedAndStoresTheTelephoneWithItsDashes) {
  pc.prompts.expect("신규고객등록을 하시겠습니까?");
  tests::whenModal<QDialog>([this](QDialog& dialog) {
    pc.prompts.expect("버리시겠습니까?", false);
    box(&dialog, "TxtTel")->setFocus();
    tests::type("01012345678");
    tests::key(Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible());
    pc.prompts.expect("버리시겠습니까?", false);
    tests::key(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_EQ(focused(), "TxtTel");
    tests::key(Qt::Key_S, Qt::AltModifier);  // the focus never leaves the box
  });
  ASSERT_TRUE(search("가람"));
  EXPECT_EQ(ask("Select Tel From Client")["Tel"].toText(), "010-1234-5678");

  pc.prompts.expect("신규고객등록을 하시겠습니까?");
  tests::whenModal<QDialog>([](QDialog& entry) {
    tests::whenModal<QDialog>([](QDialog& list) {
      EXPECT_EQ(list.objectName(), "frmSearchClient");
      tests::key(Qt::Key_Escape);
    });
    EXPECT_EQ(entry.objectName(), "frmNewClient");
    tests::key(Qt::Key_Escape);  // nothing was typed into it: nothing to ask
  });
  EXPECT_FALSE(search("나래"));
}

// --- several hands ------------------------------------------------------------------------------------------

TEST_F(ClientForms, aCustomerDeletedElsewhereStaysInTheBoxesAsANewEntry) {
  addPlain("가람", "053-111-1111");
  addPlain("나래", "053-222-2222");
  frmClient form(context);
  tests::show(form);
  tests::key(Qt::Key_Return);
  ASSERT_EQ(focused(), "TxtName");
  tests::type("x");
  pc.session.dbBasic.Execute("Delete * From Client Where Name = '가람'");
  pc.prompts.expect("변경하시겠습니까?");
  pc.prompts.expect("이미 삭제된 자료입니다!");
  tests::key(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(focused(), "TxtName");
  EXPECT_EQ(box(sheet(form), "TxtTel")->text(), "053-111-1111");
  EXPECT_FALSE(box<QPushButton>(&form, "BtnNew")->isEnabled()) << "a new entry now";
  pc.prompts.expect("버리시겠습니까?", false);
  form.close();
  tests::key(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(ask("Select Name From Client Where Tel = '053-111-1111'")["Name"].toText(), "x");
}

TEST_F(ClientForms, aPageIsTurnedOnlyWhenNothingTypedIsLost) {
  fillBooks();
  frmClient form(context);
  tests::show(form);
  auto* const tabs = form.findChild<QTabWidget*>("TabClient");
  tests::key(Qt::Key_Return);
  tests::type("x");
  pc.prompts.expect("버리시겠습니까?", false);
  tests::key(Qt::Key_2, Qt::AltModifier);
  EXPECT_EQ(tabs->currentIndex(), 0);
  EXPECT_EQ(box(sheet(form), "TxtName")->text(), "x");
  pc.prompts.expect("버리시겠습니까?");
  tests::key(Qt::Key_2, Qt::AltModifier);
  EXPECT_EQ(tabs->currentIndex(), 1);
  QApplication::processEvents();
  tests::key(Qt::Key_1, Qt::AltModifier);
  EXPECT_EQ(tabs->currentIndex(), 0);
}

}  // namespace
