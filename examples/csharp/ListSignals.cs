// Lists the signals of a DBC file. Compile it together with bindings/csharp/Vexil64.cs.
// SPDX-License-Identifier: MIT
using System;
using Vexil64;

static class ListSignals
{
    static void Main(string[] arguments)
    {
        foreach (Message message in Network.Read(arguments[0]).Messages)
            foreach (Signal signal in message.Signals)
                Console.WriteLine(message.Name + "." + signal.Name + " \"" + signal.Unit + "\"");
    }
}
