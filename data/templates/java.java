/**
 * Greets everybody named on the command line. The file has the name of its class: Program.java.
 */
public class Program {

    static String greeting(String name) {
        return "Hello, " + name + "!";
    }

    public static void main(String[] args) {
        if (args.length == 0) {
            System.out.println(greeting("World"));
        }
        for (String name : args) {
            System.out.println(greeting(name));
        }
    }
}
