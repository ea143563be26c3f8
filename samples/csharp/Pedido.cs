// A Windows Forms host of Vela, late bound: no wrapper assembly is needed.
// build.cmd compiles it with the framework's own compiler, Pedido.csproj with .NET 8 or later.
using System;
using System.Drawing;
using System.Runtime.InteropServices;
using System.Windows.Forms;

class VelaBox : AxHost
{
    public VelaBox() : base("77678695-52FF-4469-9181-A2CD883F9379") { }
}

static class Pedido
{
    [STAThread]
    static void Main()
    {
        var form = new Form { Text = "Pedido", ClientSize = new Size(260, 110) };
        var caixa = new VelaBox { Left = 16, Top = 16, Width = 140, Height = 23 };
        var mostrar = new Button { Text = "&Mostrar", Left = 16, Top = 60 };
        form.Controls.Add(caixa);
        form.Controls.Add(mostrar);
        dynamic preco = null;
        form.Load += delegate
        {
            preco = caixa.GetOcx();
            preco.TextType = 1;          // Numerico
            preco.SimbolDecExib = 2;     // Virgula
            preco.SimbolDecRet = 2;
            preco.SimbolAgrupMilhar = 1; // Ponto
            preco.QtdCasasDec = 2;
            preco.InserirZeros = true;
            // Change is event 1 of the control's event interface.
            ComEventsHelper.Combine(caixa.GetOcx(), new Guid("F6D5EEEE-D980-4204-9371-5CF4E6029B4B"), 1,
                new Action(delegate { form.Text = "Pedido: " + preco.Text; }));
        };
        mostrar.Click += delegate { MessageBox.Show(Convert.ToString(preco.Value)); };
        Application.Run(form);
    }
}
