# A late-binding script engine: members by name, values, errors, the type library, events, the calendar.
# Its lines are counted by scripts/hosts.sh.
require 'win32ole'
WIN32OLE.codepage = WIN32OLE::CP_UTF8
$stdout.sync = true

def same(what, found, expected)
  puts found == expected ? "ok #{what}" : "fail #{what}: #{found.inspect} instead of #{expected.inspect}"
end

# What the call raised: number, source, description.
def raised
  yield
  'nothing'
rescue WIN32OLERuntimeError, NoMethodError => e
  told = e.message.dup.force_encoding('UTF-8')
  told =~ /error code:(\h+) in (\S+)\s+(.*?)\s*$/ ? [$1.hex & 0xFFFF, $2, $3] : told
end

def made(properties = {})
  field = WIN32OLE.new('Vela.Vela')
  properties.each { |name, value| field.setproperty(name.to_s, value) }
  field
end

def values
  note = made(Delimitador: "'", Delimitador02: '#', EsquemaRetornoAtual: 1)
  note.Text = 'ação'
  same 'a property by name', note.text, 'ação'
  same 'Value in the first scheme', note.Value, "'ação'"
  note.EsquemaRetornoAtual = 2
  same 'Value in the second scheme', note.Value, '#ação#'
  price = made(TextType: 1, SimbolDecExib: 2, SimbolDecRet: 2, SimbolAgrupMilhar: 1, QtdCasasDec: 2, InserirZeros: true)
  price.Text = '1234,5'
  same 'a number as text', price.Text, '1.234,50'
  same 'a number as Value', price.Value, 1234.5
  day = made(DateFormat: 'dd/mm/yyyy', FormatoExibData: '__/__/____', FormatoRetornoData: 'yyyy-mm-dd',
             EsquemaRetornoAtual: 1, TextType: 2)
  same 'a date not typed', day.Value, 'null'
  day.Value = Time.new(2024, 3, 15)
  same 'a Time as text', day.Text, '15/03/2024'
  same 'a date as Value', day.Value, '2024-03-15'
  plate = made(Mask: '___-____', TextType: 3, MaskRules: '@@@-####')
  plate.Value = 'ABC1234'
  same 'a mask', [plate.Text, plate.Value], ['ABC-1234', 'ABC1234']
  font = note.Font
  font.Size = 12 # a whole number of pixels; currency comes as text there
  same 'a font changed in place', [note.FontSize, note.Font.Size], [12, '12']
end

def errors
  field = made(Mask: '__-__', TextType: 3)
  same 'an empty mask', raised { field.Mask = '' }, [1001, 'Vela', 'Mascara não pode ser vazia']
  same 'read-only', raised { field.MultLine = true }, [1002, 'Vela', 'Propriedade é Read-Only']
  same 'a bad value', raised { field.SelStart = -1 }, [380, 'Vela', 'Invalid property value']
  same 'overflow', raised { field.QtdCasasDec = 256 }, [6, 'Vela', 'Overflow']
  same 'a wrong type', raised { field.AutoSelect = 'talvez' }, [13, 'Vela', 'Type mismatch']
  same 'an unknown name', raised { field.Inexistente }[/undefined method `\w+'/], "undefined method `Inexistente'"
  same 'a method', [field.DestruirToolTip, field.LimparMemoria], [nil, nil]
  same 'after LimparMemoria', raised { field.Text = 'x' }, [91, 'Vela', 'Object variable or With block variable not set']
end

def members
  field = made
  names = field.ole_methods.map(&:name)
  puts "note #{names.uniq.size} members by ole_methods"
  same 'members by ole_methods', %w[Text Value Mask EsquemaRetornoAtual LimparMemoria DestruirToolTip About] - names, []
  failing = field.ole_get_methods.reject { |one| one.size_params > 0 }.map(&:name).uniq.map do |name|
    error = raised { field.invoke(name); 'nothing' }
    error unless error == 'nothing' || (error.is_a?(Array) && error[1] == 'Vela')
  end
  same 'each property that the type library names is read or raises an error of its own', failing.compact, []
  constants = Module.new
  WIN32OLE.const_load(field, constants)
  same 'constants', [constants::Numerico, constants::Maisculo, constants::Quarto, constants::XP], [1, 1, 4, 5]
  library = field.ole_typelib
  same 'the library', [library.name, library.ole_types.select { |one| one.ole_type == 'Class' }.map(&:name).sort],
       ['Vela 1.0', %w[Vela cCalendar]]
end

def events
  field = made
  seen = []
  sink = WIN32OLE_EVENT.new(field, 'IVelaEvents')
  sink.on_event { |name, *| seen << name }
  field.Text = 'a'
  same 'an event by late binding', seen, ['Change']
  sink.unadvise
  field.Text = 'b'
  same 'none when unadvised', seen, ['Change']
end

def calendar
  one = WIN32OLE.new('Vela.cCalendar')
  one.IniciaCalendario(Time.new(2024, 2, 29))
  same 'a Time in the calendar', one.DateInitial, Time.new(2024, 2, 29)
  one.IniciaCalendario('data' => '15/03/2024')
  same 'a named argument', one.DateInitial, Time.new(2024, 3, 15)
  same 'the calendar is read-only', raised { one.DateInitial = Time.now }.is_a?(Array), true
end

%i[values errors members events calendar].each do |part|
  send(part)
rescue StandardError => e
  puts "fail #{part} raised #{e.class}: #{e.message.tr("\n", ' ')} #{e.backtrace&.first}"
end
GC.start
puts 'end'
