// A Lazarus form with the containers that Free Pascal's importer makes: five fields and a calendar.
// The program that runs it does what is asked on the output (see scripts/hosts.sh) and counts what is said.
program host;
{$mode delphi}{$H+}
uses
  Interfaces, Windows, Classes, SysUtils, Forms, Controls, StdCtrls, ComObj, VelaLib_1_0_TLB;

type
  TOrdeal = (oFree, oDetach);

  THost = class(TForm)
  public
    FName, FCode, FAmount, FDate, FLast, Victim: TAxcVela;
    FCalendar: TAxccCalendar;
    Fate: TOrdeal;
    Armed: string;
    Asked: integer;
    Seen: TStringList;
    procedure Start(Unused: PtrInt);
    procedure Ask(const What: string);
    procedure Rest(Milliseconds: integer);
    procedure Check(Held: boolean; const What: string; const Found: string = '');
    procedure CheckText(Field: TAxcVela; const Wanted, What: string);
    procedure CheckFocus(Field: TAxcVela; const What: string);
    function Focused(Field: TAxcVela): boolean;
    procedure Click(Field: TAxcVela);
    function NewField(Y: integer): TAxcVela;
    procedure Painting;
    procedure Typing;
    procedure Leaving;
    procedure WrongDate;
    procedure LateBinding;
    procedure Ordeals;
    procedure Meet(const Event: string);
    procedure Changed(Sender: TObject);
    procedure Clicked(Sender: TObject);
    procedure Pressed(Sender: TObject; var KeyAscii: Smallint);
    procedure WentDown(Sender: TObject; var KeyCode: Smallint; var Shift: Smallint);
    procedure WentUp(Sender: TObject; var KeyCode: Smallint; var Shift: Smallint);
    procedure Left_(Sender: TObject);
  end;

var
  Form: THost;
  Paints: integer;

procedure Say(const Line: string);
begin
  Writeln(Line);
  Flush(Output);
end;

// Every WM_PAINT that the loop fetches; a window that is never done painting lets the loop do nothing else.
function Watch(Code: longint; Param: WPARAM; Data: LPARAM): LRESULT; stdcall;
begin
  if (Code = HC_ACTION) and (Param = PM_REMOVE) and (PMsg(Data)^.message = WM_PAINT) then
    Inc(Paints);
  if Paints > 2000 then
  begin
    Say('fail painted for ever: ' + IntToStr(Paints) + ' WM_PAINT');
    Say('end');
    ExitProcess(1);
  end;
  Result := CallNextHookEx(0, Code, Param, Data);
end;

procedure THost.Rest(Milliseconds: integer);
var
  Until_: QWord;
begin
  Until_ := GetTickCount64 + Milliseconds;
  repeat
    Application.ProcessMessages;
    Sleep(5);
  until GetTickCount64 > Until_;
end;

procedure THost.Ask(const What: string);
var
  Patience: QWord;
begin
  Inc(Asked);
  Say(What);
  Patience := GetTickCount64 + 60000;
  while not FileExists(ParamStr(1) + '/ack-' + IntToStr(Asked)) and (GetTickCount64 < Patience) do
    Rest(20);
  Rest(400);
end;

procedure THost.Check(Held: boolean; const What: string; const Found: string);
begin
  if Held then
    Say('ok ' + What)
  else
    Say('fail ' + What + ': ' + Found);
end;

procedure THost.CheckText(Field: TAxcVela; const Wanted, What: string);
var
  Tries: integer;
begin
  for Tries := 1 to 20 do
    if Field.OleServer.Text_ <> Wanted then
      Rest(250);
  Check(Field.OleServer.Text_ = Wanted, What, Field.OleServer.Text_);
end;

function THost.Focused(Field: TAxcVela): boolean;
begin
  Result := Windows.GetFocus = HWND(PtrUInt(Field.OleServer.hwnd));
end;

procedure THost.CheckFocus(Field: TAxcVela; const What: string);
var
  Name: array[0..63] of char;
  Place: TRect;
begin
  Name := '';
  GetClassNameA(Windows.GetFocus, Name, SizeOf(Name));
  Windows.GetWindowRect(Windows.GetFocus, Place);
  Check(Focused(Field), What, Format('the focus is at %s %d,%d', [Name, Place.Left, Place.Top]));
end;

procedure THost.Click(Field: TAxcVela);
var
  At: TPoint;
begin
  At := Field.ClientToScreen(Classes.Point(40, 10));
  Ask(Format('click %d %d', [At.X, At.Y]));
end;

function THost.NewField(Y: integer): TAxcVela;
begin
  Result := TAxcVela.Create(Self);
  Result.SetBounds(16, Y, 180, 24);
  Result.Active := True;
end;

procedure THost.Painting;
var
  Before: integer;
begin
  Rest(2500);
  Ask('picture shown');
  Say('note ' + IntToStr(Paints) + ' WM_PAINT until the form stood still');
  Before := Paints;
  Rest(2000);
  Check(Paints - Before < 5, 'a form that stands still is not painted again', IntToStr(Paints - Before) + ' WM_PAINT in 2 s');
end;

procedure THost.Typing;
begin
  Click(FName);
  CheckFocus(FName, 'a click focuses the field');
  Ask('type maria');
  CheckText(FName, 'maria', 'text is typed');
  Check((Seen.IndexOf('KeyDown') >= 0) and (Seen.IndexOf('KeyPress') >= 0) and (Seen.IndexOf('KeyUp') >= 0) and
    (Seen.IndexOf('Change') >= 0) and (Seen.IndexOf('Click') >= 0), 'the events arrive', Seen.CommaText);
  Click(FCode);
  Ask('type axbx');
  CheckText(FCode, 'aybz', 'KeyAscii changed in KeyPress is what is typed'); // each x is another letter
  Click(FAmount);
  Ask('type 1234,5');
  Click(FName);
  CheckText(FAmount, '1.234,50', 'an amount left by the mouse is formatted');
  Check(FAmount.OleServer.Value = 1234.5, 'its Value is a number', string(FAmount.OleServer.Value));
end;

procedure THost.Leaving;

  procedure Leaves(const Way: string);
  begin
    if Focused(FCode) then
      Say('note ' + Way + ' goes on to the next field')
    else
      Say('host ' + Way + ' does not leave a field: the loop of the LCL hands Tab to windows of the LCL only');
  end;

begin
  Click(FName);
  Ask('key Tab');
  Leaves('Tab');
  CheckText(FName, 'maria', 'Tab writes nothing into the field');
  FName.OleServer.EnterAsTab := True;
  Click(FName);
  Ask('key Return');
  Leaves('Enter as Tab');
  FName.OleServer.MaxLength := 5;
  FName.OleServer.AutoTAB := True;
  Click(FName);
  Ask('key Home Delete');
  Ask('type m');
  Leaves('the automatic Tab');
  CheckText(FName, 'maria', 'and neither do these');
end;

function Balloon: HWND;
begin
  Result := 0;
  repeat
    Result := FindWindowExA(0, Result, 'tooltips_class32', nil);
  until (Result = 0) or (IsWindowVisible(Result) and (GetWindowThreadProcessId(Result, nil) = GetCurrentThreadId));
end;

procedure THost.WrongDate;
begin
  Click(FDate);
  Ask('type 31022024');
  Click(FCode); // its alert will lie over the field below
  Rest(600);
  CheckFocus(FDate, 'a wrong date holds the focus against the mouse');
  Check(Balloon <> 0, 'its alert is up');
  Ask('picture alert');
  Click(FCode);
  CheckFocus(FDate, 'with ErrorFocus until it is right');
  Ask('key Home');
  Ask('type 28022024');
  Click(FCode);
  CheckFocus(FCode, 'a right date lets go');
  CheckText(FDate, '28/02/2024', 'and is kept');
end;

procedure THost.Meet(const Event: string);
var
  Gone: TAxcVela;
begin
  if Seen.IndexOf(Event) < 0 then
    Seen.Add(Event);
  if Armed <> Event then
    exit;
  Armed := '';
  Gone := Victim;
  if Fate = oFree then
  begin
    Victim := nil;
    Gone.Free;
  end
  else
    Gone.Active := False;
end;

procedure THost.Changed(Sender: TObject);
begin
  Meet('Change');
end;

procedure THost.Clicked(Sender: TObject);
begin
  Meet('Click');
end;

procedure THost.Pressed(Sender: TObject; var KeyAscii: Smallint);
begin
  if (Sender = FCode) and (KeyAscii = Ord('x')) then
    if FCode.OleServer.Text_ = 'a' then
      KeyAscii := Ord('y')
    else
      KeyAscii := Ord('z');
  Meet('KeyPress');
end;

procedure THost.WentDown(Sender: TObject; var KeyCode: Smallint; var Shift: Smallint);
begin
  Meet('KeyDown');
end;

procedure THost.WentUp(Sender: TObject; var KeyCode: Smallint; var Shift: Smallint);
begin
  Meet('KeyUp');
end;

procedure THost.Left_(Sender: TObject);
begin
  Meet('MouseOut');
end;

// Members by name through a variant, as scripts have them.
procedure THost.LateBinding;
var
  Field: OleVariant;
  Told: string;
begin
  Field := FLast.vObject;
  Field.Text := 'por nome';
  Check(Field.text = 'por nome', 'a member by name, whatever its case', string(Field.Text));
  Field.tipoLetra := Maisculo;
  Check(Field.tipoLetra = Maisculo, 'an enumeration by name');
  Told := '';
  try
    Field.MultLine := True; // read-only at run time
  except
    on E: EOleException do
      Told := Format('%x %s', [E.ErrorCode and $FFFF, E.Source]);
  end;
  Check(Told = '3EA Vela', 'an error arrives with its number and source', Told);
end;

// In each event the field that raises it is freed, or taken out of its container.
procedure THost.Ordeals;
const
  Events: array[0..5] of string = ('Click', 'KeyDown', 'KeyPress', 'Change', 'KeyUp', 'MouseOut');
  Fates: array[TOrdeal] of string = ('freed', 'detached');
var
  Event: string;
  One: TOrdeal;
begin
  for One := Low(TOrdeal) to High(TOrdeal) do
    for Event in Events do
    begin
      Victim := NewField(330);
      Victim.OnChange := Changed;
      Victim.OnClick := Clicked;
      Victim.OnKeyPress := Pressed;
      Victim.OnKeyDown := WentDown;
      Victim.OnKeyUp := WentUp;
      Victim.OnMouseOut := Left_;
      Fate := One;
      Armed := Event;
      Rest(200);
      Click(Victim);
      if (Armed <> '') and (Event <> 'MouseOut') then
        Ask('type a');
      if Armed <> '' then
        Ask('move 5 5');
      Rest(500);
      Check(Armed = '', Fates[One] + ' inside ' + Event, 'the event did not come');
      FreeAndNil(Victim);
      Rest(100);
    end;
  Click(FName);
  CheckFocus(FName, 'the other fields live on');
end;

procedure THost.Start(Unused: PtrInt);
begin
  FName := NewField(16);
  FCode := NewField(48);
  FAmount := NewField(80);
  FDate := NewField(112);
  FLast := NewField(144);
  FCalendar := TAxccCalendar.Create(Self);
  FCalendar.SetBounds(220, 16, 200, 170);
  FCalendar.Active := True;
  FAmount.OleServer.TextType := Numerico;
  FAmount.OleServer.SimbolDecExib := Virgula;
  FAmount.OleServer.SimbolDecRet := Virgula;
  FAmount.OleServer.SimbolAgrupMilhar := Ponto;
  FAmount.OleServer.QtdCasasDec := 2;
  FAmount.OleServer.InserirZeros := True;
  FDate.OleServer.FormatoExibData := '__/__/____';
  FDate.OleServer.DateFormat := 'dd/mm/yyyy';
  FDate.OleServer.TextType := Data;
  FDate.OleServer.ErrorAlert := True;
  FDate.OleServer.ErrorFocus := True;
  FName.OnChange := Changed;
  FName.OnClick := Clicked;
  FName.OnKeyPress := Pressed;
  FName.OnKeyDown := WentDown;
  FName.OnKeyUp := WentUp;
  FCode.OnKeyPress := Pressed;
  try
    Painting;
    Typing;
    Leaving;
    WrongDate;
    LateBinding;
    Ordeals;
    Ask('picture end');
  except
    on E: Exception do
      Say('fail the host raised ' + E.ClassName + ': ' + E.Message);
  end;
  Close;
end;

begin
  Application.Initialize;
  Form := THost.CreateNew(Application);
  Form.Seen := TStringList.Create;
  Form.SetBounds(60, 60, 460, 400);
  Form.Caption := 'Lazarus';
  SetWindowsHookEx(WH_GETMESSAGE, Watch, 0, GetCurrentThreadId);
  Form.Show;
  Application.MainFormOnTaskBar := False;
  Application.QueueAsyncCall(Form.Start, 0);
  while Form.Visible do
    Application.HandleMessage;
  Form.Free;
  Say('end');
end.
