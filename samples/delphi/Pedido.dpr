program Pedido;

// A form made in code, with a late-bound field: no imported type library is needed.
uses
  Forms, Controls, OleCtrls, SysUtils, Variants, Dialogs, StdCtrls, Classes, ActiveX;

type
  TVela = class(TOleControl)
  private
    FData: TControlData2;
  protected
    procedure InitControlData; override;
  end;

  TPedido = class(TForm)
  public
    Preco: TVela;
    procedure Mostra(Sender: TObject);
  end;

procedure TVela.InitControlData;
begin
  FillChar(FData, SizeOf(FData), 0);
  FData.ClassID := StringToGUID('{77678695-52FF-4469-9181-A2CD883F9379}');
  FData.Version := 401;
  ControlData := @FData;
end;

procedure TPedido.Mostra(Sender: TObject);
begin
  ShowMessage(VarToStr(Preco.OleObject.Value));
end;

var
  Form: TPedido;
  Botao: TButton;
begin
  Application.Initialize;
  Form := TPedido.CreateNew(Application);
  Form.Caption := 'Pedido';
  Form.SetBounds(200, 200, 280, 150);
  Form.Preco := TVela.Create(Form);
  Form.Preco.Parent := Form;
  Form.Preco.SetBounds(16, 16, 140, 23);
  Form.Preco.OleObject.TextType := 1;          // Numerico
  Form.Preco.OleObject.SimbolDecExib := 2;     // Virgula
  Form.Preco.OleObject.SimbolDecRet := 2;
  Form.Preco.OleObject.SimbolAgrupMilhar := 1; // Ponto
  Form.Preco.OleObject.QtdCasasDec := 2;
  Form.Preco.OleObject.InserirZeros := True;
  Botao := TButton.Create(Form);
  Botao.Parent := Form;
  Botao.SetBounds(16, 60, 90, 25);
  Botao.Caption := '&Mostrar';
  Botao.OnClick := Form.Mostra;
  Form.ShowModal;
end.
