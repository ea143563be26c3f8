// A Windows Forms host of Vela, late bound: no wrapper assembly is needed.
// build.cmd compiles it with the framework's own compiler for the bitness whose Vela.ocx is registered.
using System;
using System.Reflection;
using System.Windows.Forms;

class VelaBox : AxHost
{
    public VelaBox() : base("77678695-52FF-4469-9181-A2CD883F9379") { }

    public object this[string property]
    {
        get { object o = GetOcx(); return o.GetType().InvokeMember(property, BindingFlags.GetProperty, null, o, null); }
        set { object o = GetOcx(); o.GetType().InvokeMember(property, BindingFlags.SetProperty, null, o, new[] { value }); }
    }
}

static class Pedido
{
    [STAThread]
    static void Main()
    {
        var form = new Form { Text = "Pedido", ClientSize = new System.Drawing.Size(260, 110) };
        var preco = new VelaBox { Left = 16, Top = 16, Width = 140, Height = 23 };
        var mostrar = new Button { Text = "&Mostrar", Left = 16, Top = 60 };
        form.Controls.Add(preco);
        form.Controls.Add(mostrar);
        form.Load += delegate
        {
            preco["TextType"] = 1;          // Numerico
            preco["SimbolDecExib"] = 2;     // Virgula
            preco["SimbolDecRet"] = 2;
            preco["SimbolAgrupMilhar"] = 1; // Ponto
            preco["QtdCasasDec"] = (byte)2;
            preco["InserirZeros"] = true;
        };
        mostrar.Click += delegate { MessageBox.Show(Convert.ToString(preco["Value"])); };
        Application.Run(form);
    }
}
